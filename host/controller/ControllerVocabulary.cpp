#include "ControllerVocabulary.h"

#include "StateDescription.h"

#include <QVariant>

#include <algorithm>

namespace {

using Access = ParameterAccess;

QString flag(bool value)
{
    return value ? "yes" : "no";
}

/** Visits a record and sets one of its fields to a value from a command, if the field's rule takes it. */
struct FieldSetter
{
    template <typename Value>
    void field(const FieldRule& rule, Value& target)
    {
        if (rule.key != key)
            return;
        const QJsonValue value = rule.form == FieldRule::Flag ? QJsonValue(text == "yes") : rule.parse(text);
        isTaken = rule.refusal(value).isEmpty() && (rule.form != FieldRule::Flag || text == "yes" || text == "no");
        if (isTaken)
            target = value.toVariant().value<Value>();
    }
    void field(const FieldRule& /*rule*/, VersionInfo& /*no command sets it*/) {}
    template <typename... Arguments>
    void list(Arguments&&... /*no command sets a list*/)
    {}

    QString key;
    QString text;
    bool isTaken = false;
};

template <typename... Records>
bool setField(const char* key, const QString& text, Records&... records)
{
    FieldSetter visit{key, text};
    describe(visit, records...);
    return visit.isTaken;
}

/** The quoted description of the first of \a items whose \a key is \a wanted; a null text when there is none. */
template <typename Item>
QString description(const QVector<Item>& items, QString Item::*key, const QString& wanted)
{
    for (const Item& item : items) {
        if (item.*key == wanted)
            return '"' + item.description + '"';
    }
    return {};
}

/** The source that the command's first word names; null when the card does not offer it. */
const SourceState* named(const Access& a)
{
    return a.card->findSource(a.words.first());
}

bool setSource(Access& a, const QString& value)
{
    const SourceState* source = a.card->findSource(value);
    const bool isTaken = source && !a.state->refusesSources;
    if (isTaken)
        a.card->select(*source);
    return isTaken;
}

constexpr ProtocolGate modes{0, 8};
constexpr ProtocolGate cards{0, 13};
constexpr ProtocolGate frequencyLimit{1, 5};
constexpr ProtocolGate configLock{1, 9};
constexpr ProtocolGate outputs{1, 23};

// clang-format off
const Parameter parameters[] = {
    {"config is_changeable", "", configLock, [](const Access& a) { return flag(!a.state->locked); }, nullptr},
    {"synccard available", "", modes, [](const Access& a) { return flag(a.state->cardsPresent && !a.state->cards.isEmpty()); }, nullptr},
    {"synccard has_input_frequency", "", modes, [](const Access& a) { return flag(!a.state->input.isEmpty()); }, nullptr},
    {"synccard input_frequency", "", modes, [](const Access& a) { return a.state->input.isEmpty() ? QString() : a.state->input; }, nullptr},
    {"synccard synccard", "", modes, [](const Access& a) { return a.state->cards.isEmpty() ? QString() : '"' + a.state->cards.first().description + "\" " + a.state->cards.first().serial; }, nullptr},
    {"synccard number_of_modes", "", modes, [](const Access& a) { return QString::number(a.state->modes.size()); }, nullptr},
    {"synccard mode", "t", modes, [](const Access& a) { return a.mode->id; }, nullptr},
    {"synccard mode_desc", "w", modes, [](const Access& a) { return description(a.state->modes, &ModeState::id, a.words.first()); }, nullptr},
    {"synccard active_mode", "", modes, [](const Access& a) { return a.state->activeMode; },
     [](Access& a, const QString& value) { return setField("activeMode", value, *a.state); }},
    {"synccard number_of_synccards", "", cards, [](const Access& a) { return QString::number(a.state->cards.size()); }, nullptr},
    {"synccard synccard", "d", cards, [](const Access& a) { return a.card->model + ' ' + a.card->serial; }, nullptr},
    {"synccard model_desc", "w", cards, [](const Access& a) { return description(a.state->cards, &CardState::model, a.words.first()); }, nullptr},
    {"synccard has_source", "dw", cards, [](const Access& a) { return flag(named(a)); }, nullptr},
    {"synccard source", "d", cards, [](const Access& a) { return a.card->source; }, setSource},
    {"synccard max_internal_frequency", "d", frequencyLimit, [](const Access& a) { return QString::number(a.card->maxFrequency, 'g', 12); }, nullptr},
    {"synccard internal_frequency", "d", cards, [](const Access& a) { return QString::number(a.card->frequency, 'g', 12); },
     [](Access& a, const QString& value) { return setField("frequency", value, *a.card, *a.state); }},
    {"synccard max_external_divisor", "dw", cards, [](const Access& a) { return named(a) ? QString::number(named(a)->maxDivisor) : QString(); }, nullptr},
    {"synccard external_divisor", "d", cards, [](const Access& a) { return QString::number(a.card->divisor); },
     [](Access& a, const QString& value) { return setField("divisor", value, *a.card, *a.state); }},
    {"synccard has_output", "dww", outputs, [](const Access& a) { return flag(named(a) && named(a)->outputs.contains(a.words.last())); }, nullptr},
    {"synccard output", "d", outputs, [](const Access& a) { return a.card->output; },
     [](Access& a, const QString& value) { return setField("output", value, *a.card, *a.state); }},
    {"synccard number_of_channels", "d", cards, [](const Access& a) { return QString::number(a.card->channels.size()); }, nullptr},
    {"synccard max_output_delay", "d", cards, [](const Access& a) { return QString::number(a.card->maxDelay, 'g', 12); }, nullptr},
    {"synccard output_delay", "dc", cards, [](const Access& a) { return QString::number(a.channel->delay, 'g', 12); },
     [](Access& a, const QString& value) { return setField("delay", value, *a.channel, *a.card); }},
    {"synccard output_during_idle", "dc", cards, [](const Access& a) { return flag(a.channel->activeDuringIdle); },
     [](Access& a, const QString& value) { return setField("activeDuringIdle", value, *a.channel, *a.card); }},
};
// clang-format on

/** The entry that \a word, such as "d01", names in \a items by \a prefix and number from 1; null when there is none. */
template <typename Items>
auto* entry(Items& items, const QString& prefix, const QString& word)
{
    bool isNumber = false;
    const int position = word.midRef(prefix.size()).toInt(&isNumber);
    const bool isEntry = word.startsWith(prefix) && isNumber && position >= 1 && position <= items.size();
    return isEntry ? &items[position - 1] : nullptr;
}

bool resolve(char qualifier, const QString& word, Access* access)
{
    switch (qualifier) {
    case 'd':
        return (access->card = entry(access->state->cards, "d", word));
    case 'c':
        return (access->channel = entry(access->card->channels, "ch", word));
    case 't':
        return (access->mode = entry(access->state->modes, "t", word));
    default:
        access->words.append(word);
        return !word.isEmpty();
    }
}

} // namespace

const Parameter* findParameter(const QStringList& words, ParameterAccess* access)
{
    const QString name = words.mid(0, 2).join(' ');
    const auto matches = [&](const Parameter& parameter) {
        return name == parameter.name && words.size() - 2 == static_cast<int>(qstrlen(parameter.qualifiers));
    };
    const auto* found = std::find_if(std::begin(parameters), std::end(parameters), matches);
    if (found == std::end(parameters)
        || access->state->protocol < VersionInfo(found->since.major, found->since.minor, -1))
        return nullptr;
    for (int i = 2; i < words.size(); ++i) {
        if (!resolve(found->qualifiers[i - 2], words.at(i), access))
            return nullptr;
    }
    return found;
}
