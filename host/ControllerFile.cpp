#include "ControllerFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

constexpr double unlimited = std::numeric_limits<float>::max();

/** The members of one JSON object. The first thing amiss is kept in the shared error as "place: reason". */
class Members
{
public:
    Members(const QJsonValue& value, const QString& place, QString* error)
        : object(value.toObject()), prefix(place.isEmpty() ? place : place + '.'), error(error)
    {
        if (!value.isObject())
            fail(place, "an object is expected");
    }

    void read(const QString& key, QString* text)
    {
        const QJsonValue value = take(key);
        if (value.isString())
            *text = value.toString();
        else if (!value.isUndefined())
            fail(prefix + key, "a text is expected");
    }

    void read(const QString& key, bool* flag)
    {
        const QJsonValue value = take(key);
        if (value.isBool())
            *flag = value.toBool();
        else if (!value.isUndefined())
            fail(prefix + key, "true or false is expected");
    }

    void read(const QString& key, double* number, double minimum, double maximum)
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return;
        if (value.isDouble() && value.toDouble() >= minimum && value.toDouble() <= maximum)
            *number = value.toDouble();
        else
            fail(prefix + key, QString("a number from %1 to %2 is expected").arg(minimum).arg(maximum));
    }

    void read(const QString& key, int* number, int minimum, int maximum)
    {
        double value = *number;
        read(key, &value, minimum, maximum);
        if (std::floor(value) == value)
            *number = static_cast<int>(value);
        else
            fail(prefix + key, "a whole number is expected");
    }

    /** Replaces \a items by what \a readItem makes of each entry; it gets the entry and its place. */
    template <typename Items, typename ReadItem>
    void read(const QString& key, Items* items, ReadItem readItem)
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return;
        if (!value.isArray())
            return fail(prefix + key, "a list is expected");
        items->clear();
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            items->append(readItem(array.at(i), QString("%1%2[%3]").arg(prefix, key).arg(i)));
    }

    /** To be called when all members are read: what is left is unknown. */
    void finish()
    {
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
            fail(prefix + it.key(), "unknown entry");
    }

    void fail(const QString& place, const QString& reason)
    {
        if (error->isEmpty())
            *error = place.isEmpty() ? reason : place + ": " + reason;
    }

    /** Fails at the member \a key unless \a condition holds. */
    void demand(bool condition, const QString& key, const QString& reason)
    {
        if (!condition)
            fail(prefix + key, reason);
    }

    void demandWord(const QString& text, const QString& key)
    {
        demand(!text.isEmpty() && !text.contains(' '), key, "one word is expected");
    }

private:
    QJsonValue take(const QString& key)
    {
        return object.contains(key) ? object.take(key) : QJsonValue(QJsonValue::Undefined);
    }

    QJsonObject object;
    QString prefix;
    QString* error;
};

class Reader
{
public:
    explicit Reader(QString* error) : error(error) {}

    ControllerState readState(const QJsonValue& value, ControllerState state)
    {
        Members members(value, QString(), error);
        static const QRegularExpression lineBreak("\\R");
        members.read("description", &state.description);
        members.demand(!state.description.contains(lineBreak), "description", "one line is expected");
        QString protocol = state.protocol.toString();
        bool isVersion = false;
        members.read("protocol", &protocol);
        state.protocol.fromString(protocol, &isVersion);
        members.demand(isVersion, "protocol", "a version such as \"1.23.0\" is expected");
        members.read("model", &state.model);
        members.read("locked", &state.locked);
        members.read("refusesSources", &state.refusesSources);
        members.read("input", &state.input);
        members.read("modes", &state.modes, [this](const auto& v, const auto& p) { return readMode(v, p); });
        members.read("activeMode", &state.activeMode);
        members.read("cards", &state.cards, [this](const auto& v, const auto& p) { return readCard(v, p); });
        members.read("cardsPresent", &state.cardsPresent);
        members.demand(state.activeMode == "none" || state.hasMode(state.activeMode), "activeMode",
                       "neither \"none\" nor one of the modes");
        members.finish();
        return state;
    }

private:
    QString readText(const QJsonValue& value, const QString& place)
    {
        if (!value.isString())
            Members(QJsonObject(), place, error).fail(place, "a text is expected");
        return value.toString();
    }

    ModeState readMode(const QJsonValue& value, const QString& place)
    {
        ModeState mode;
        Members members(value, place, error);
        members.read("id", &mode.id);
        members.read("description", &mode.description);
        members.demandWord(mode.id, "id");
        members.demand(mode.id != "none", "id", "\"none\" stands for direct settings");
        members.finish();
        return mode;
    }

    SourceState readSource(const QJsonValue& value, const QString& place)
    {
        SourceState source;
        Members members(value, place, error);
        members.read("keyword", &source.keyword);
        members.read("maxDivisor", &source.maxDivisor, 1, std::numeric_limits<int>::max());
        members.read("outputs", &source.outputs, [this](const auto& v, const auto& p) { return readText(v, p); });
        members.demand(!source.keyword.isEmpty(), "keyword", "a source needs its keyword");
        members.finish();
        return source;
    }

    ChannelState readChannel(const QJsonValue& value, const QString& place, double maxDelay)
    {
        ChannelState channel;
        Members members(value, place, error);
        members.read("delay", &channel.delay, 0.0, maxDelay);
        members.read("activeDuringIdle", &channel.activeDuringIdle);
        members.finish();
        return channel;
    }

    CardState readCard(const QJsonValue& value, const QString& place)
    {
        CardState card;
        card.sources = ControllerState::builtIn().cards.first().sources;
        Members members(value, place, error);
        members.read("model", &card.model);
        members.demandWord(card.model, "model");
        members.read("serial", &card.serial);
        members.read("description", &card.description);
        members.read("sources", &card.sources, [this](const auto& v, const auto& p) { return readSource(v, p); });
        members.read("source", &card.source);
        members.read("maxFrequency", &card.maxFrequency, minimumFrequency, unlimited);
        members.read("frequency", &card.frequency, minimumFrequency, card.maxFrequency);
        const SourceState* source = card.findSource(card.source);
        members.demand(source, "source", "the card does not offer this source");
        members.read("divisor", &card.divisor, 1, source ? source->maxDivisor : 1);
        members.read("output", &card.output);
        members.demand(card.output == "none" || (source && source->outputs.contains(card.output)), "output",
                       "not offered with the card's source");
        members.read("maxDelay", &card.maxDelay, 0.0, unlimited);
        members.read("channels", &card.channels,
                     [&](const auto& v, const auto& p) { return readChannel(v, p, card.maxDelay); });
        members.finish();
        return card;
    }

    QString* error;
};

/** "line 3, column 7: reason" for the place where the parser stopped. */
QString syntaxError(const QByteArray& text, const QJsonParseError& parseError)
{
    const QByteArray before = text.left(parseError.offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QString("line %1, column %2: %3").arg(line).arg(column).arg(parseError.errorString());
}

} // namespace

bool readControllerState(const QJsonValue& value, ControllerState* state, QString* error)
{
    QString reason;
    const ControllerState read = Reader(&reason).readState(value, *state);
    if (reason.isEmpty())
        *state = read;
    else
        *error = reason.simplified();
    return reason.isEmpty();
}

bool readControllerFile(const QString& file, ControllerState* state, QString* error)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        *error = file + ": " + input.errorString();
        return false;
    }
    const QByteArray text = input.readAll();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    const QJsonValue whole = document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
    QString reason;
    if (parseError.error != QJsonParseError::NoError)
        reason = syntaxError(text, parseError).simplified();
    else
        readControllerState(whole, state, &reason);
    if (!reason.isEmpty())
        *error = file + ": " + reason;
    return reason.isEmpty();
}
