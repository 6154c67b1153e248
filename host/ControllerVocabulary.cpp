#include "ControllerVocabulary.h"

#include <algorithm>
#include <cmath>

namespace {

using Access = ParameterAccess;

QString flag(bool value)
{
    return value ? "yes" : "no";
}

QString number(double value)
{
    return QString::number(value, 'g', 12);
}

/** Takes a number with a decimal point from \a minimum to \a maximum. */
bool setNumber(double* target, const QString& value, double minimum, double maximum)
{
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    if (!isNumber || !(wanted >= minimum && wanted <= maximum))
        return false;
    *target = wanted;
    return true;
}

QString legacyCard(const Access& a)
{
    if (a.state->cards.isEmpty())
        return {};
    const CardState& card = a.state->cards.first();
    return QString("\"%1\" %2").arg(card.description, card.serial);
}

QString modelDescription(const Access& a)
{
    for (const CardState& card : qAsConst(a.state->cards)) {
        if (card.model == a.words.first())
            return '"' + card.description + '"';
    }
    return {};
}

QString modeDescription(const Access& a)
{
    for (const ModeState& mode : qAsConst(a.state->modes)) {
        if (mode.id == a.words.first())
            return '"' + mode.description + '"';
    }
    return {};
}

bool setActiveMode(Access& a, const QString& value)
{
    if (value != "none" && !a.state->hasMode(value))
        return false;
    a.state->activeMode = value;
    return true;
}

/** A new source takes along what it does not allow: a divisor beyond its largest, an output it does not drive. */
bool setSource(Access& a, const QString& value)
{
    const SourceState* source = a.card->findSource(value);
    if (!source || a.state->refusesSources)
        return false;
    a.card->source = value;
    a.card->divisor = qMin(a.card->divisor, source->maxDivisor);
    if (!source->outputs.contains(a.card->output))
        a.card->output = "none";
    return true;
}

QString maxDivisor(const Access& a)
{
    const SourceState* source = a.card->findSource(a.words.first());
    return source ? QString::number(source->maxDivisor) : QString();
}

bool setDivisor(Access& a, const QString& value)
{
    const SourceState* source = a.card->findSource(a.card->source);
    bool isNumber = false;
    const int wanted = value.toInt(&isNumber);
    if (!isNumber || wanted < 1 || !source || wanted > source->maxDivisor)
        return false;
    a.card->divisor = wanted;
    return true;
}

QString hasOutput(const Access& a)
{
    const SourceState* source = a.card->findSource(a.words.first());
    return flag(source && source->outputs.contains(a.words.last()));
}

bool setOutput(Access& a, const QString& value)
{
    const SourceState* source = a.card->findSource(a.card->source);
    if (value != "none" && !(source && source->outputs.contains(value)))
        return false;
    a.card->output = value;
    return true;
}

bool setIdle(Access& a, const QString& value)
{
    if (value != "yes" && value != "no")
        return false;
    a.channel->activeDuringIdle = value == "yes";
    return true;
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
    {"synccard synccard", "", modes, legacyCard, nullptr},
    {"synccard number_of_modes", "", modes, [](const Access& a) { return QString::number(a.state->modes.size()); }, nullptr},
    {"synccard mode", "t", modes, [](const Access& a) { return a.mode->id; }, nullptr},
    {"synccard mode_desc", "w", modes, modeDescription, nullptr},
    {"synccard active_mode", "", modes, [](const Access& a) { return a.state->activeMode; }, setActiveMode},
    {"synccard number_of_synccards", "", cards, [](const Access& a) { return QString::number(a.state->cards.size()); }, nullptr},
    {"synccard synccard", "d", cards, [](const Access& a) { return a.card->model + ' ' + a.card->serial; }, nullptr},
    {"synccard model_desc", "w", cards, modelDescription, nullptr},
    {"synccard has_source", "dw", cards, [](const Access& a) { return flag(a.card->findSource(a.words.first())); }, nullptr},
    {"synccard source", "d", cards, [](const Access& a) { return a.card->source; }, setSource},
    {"synccard max_internal_frequency", "d", frequencyLimit, [](const Access& a) { return number(a.card->maxFrequency); }, nullptr},
    {"synccard internal_frequency", "d", cards, [](const Access& a) { return number(a.card->frequency); },
     [](Access& a, const QString& value) { return setNumber(&a.card->frequency, value, minimumFrequency, a.card->maxFrequency); }},
    {"synccard max_external_divisor", "dw", cards, maxDivisor, nullptr},
    {"synccard external_divisor", "d", cards, [](const Access& a) { return QString::number(a.card->divisor); }, setDivisor},
    {"synccard has_output", "dww", outputs, hasOutput, nullptr},
    {"synccard output", "d", outputs, [](const Access& a) { return a.card->output; }, setOutput},
    {"synccard number_of_channels", "d", cards, [](const Access& a) { return QString::number(a.card->channels.size()); }, nullptr},
    {"synccard max_output_delay", "d", cards, [](const Access& a) { return number(a.card->maxDelay); }, nullptr},
    {"synccard output_delay", "dc", cards, [](const Access& a) { return number(a.channel->delay); },
     [](Access& a, const QString& value) { return setNumber(&a.channel->delay, value, 0.0, a.card->maxDelay); }},
    {"synccard output_during_idle", "dc", cards, [](const Access& a) { return flag(a.channel->activeDuringIdle); }, setIdle},
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

bool isNamed(const Parameter& parameter, const QStringList& words)
{
    return words.size() - 2 == static_cast<int>(qstrlen(parameter.qualifiers))
           && words.at(0) + ' ' + words.at(1) == parameter.name;
}

} // namespace

const Parameter* findParameter(const QStringList& words, ParameterAccess* access)
{
    const auto matches = [&](const Parameter& parameter) { return words.size() >= 2 && isNamed(parameter, words); };
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
