#pragma once

#include "ControllerState.h"

#include <QJsonValue>

#include <limits>

/** What is known of one field: its name in files and errors, its unit, and which values it takes. */
struct FieldRule
{
    enum Form { Text, Line, Word, Version, Choice, Flag, Number, WholeNumber };

    QString key;
    Form form = Text;
    QStringList choices = {}; // of a Choice; for other forms examples
    QString unit = {};
    double minimum = 0.0; // of a number, as maximum
    double maximum = 0.0;
    QString reserved = {}; // a text that is refused, as it means something else
    QString meaning = {};

    /** What somebody entered for this field, with the type of the field where it can be converted. */
    QJsonValue parse(const QString& entered) const;
    /** Why \a value is refused, such as "a number from 10 to 500 Hz is expected"; an empty text when it is taken. */
    QString refusal(const QJsonValue& value) const;
};

/** Where numbers have no other bound. */
constexpr double unlimited = std::numeric_limits<float>::max();
constexpr double largestInt = std::numeric_limits<int>::max();

// The fields of each record, described once for reading, writing and editing. A visitor has field(), called with a rule
// and the field, and list(), called with a key, the list, the record around it, and the field that must differ between
// its entries, if any. A limit is visited before what it limits.

template <typename Visitor>
void describe(Visitor& visit, ModeState& mode, const ControllerState& /*state*/)
{
    FieldRule id{"id", FieldRule::Word};
    id.reserved = "none";
    id.meaning = "direct settings";
    visit.field(id, mode.id);
    visit.field({"description"}, mode.description);
}

template <typename Visitor>
void describe(Visitor& visit, SourceState& source, const CardState& /*card*/)
{
    visit.field({"keyword", FieldRule::Word}, source.keyword);
    visit.field({"maxDivisor", FieldRule::WholeNumber, {}, {}, 1, largestInt}, source.maxDivisor);
    visit.field({"outputs"}, source.outputs);
}

template <typename Visitor>
void describe(Visitor& visit, ChannelState& channel, const CardState& card)
{
    visit.field({"delay", FieldRule::Number, {}, "ms", 0.0, card.maxDelay}, channel.delay);
    visit.field({"activeDuringIdle", FieldRule::Flag}, channel.activeDuringIdle);
}

template <typename Visitor>
void describe(Visitor& visit, CardState& card, const ControllerState& /*state*/)
{
    constexpr double minimum = 10.0; // Hz, of every card's internal source
    visit.field({"model", FieldRule::Word}, card.model);
    visit.field({"serial"}, card.serial);
    visit.field({"description"}, card.description);
    visit.list("sources", card.sources, card, &SourceState::keyword);
    visit.field({"source", FieldRule::Choice, card.offeredSources()}, card.source);
    visit.field({"maxFrequency", FieldRule::Number, {}, "Hz", minimum, unlimited}, card.maxFrequency);
    visit.field({"frequency", FieldRule::Number, {}, "Hz", minimum, card.maxFrequency}, card.frequency);
    visit.field({"divisor", FieldRule::WholeNumber, {}, {}, 1, static_cast<double>(card.maxDivisor())}, card.divisor);
    visit.field({"output", FieldRule::Choice, card.offeredOutputs()}, card.output);
    visit.field({"maxDelay", FieldRule::Number, {}, "ms", 0.0, unlimited}, card.maxDelay);
    visit.list("channels", card.channels, card);
}

template <typename Visitor>
void describe(Visitor& visit, ControllerState& state)
{
    visit.field({"description", FieldRule::Line}, state.description);
    // The examples are the versions at which what the dialog asks changes, and an input of each kind.
    const QString versions = "0.7.9 0.8.0 0.12.7 0.13.0 1.1.0 1.2.0 1.5.0 1.9.0 1.10.0 1.11.0 1.15.0 1.22.0 1.23.0";
    visit.field({"protocol", FieldRule::Version, versions.split(' ')}, state.protocol);
    visit.field({"model"}, state.model);
    visit.field({"locked", FieldRule::Flag}, state.locked);
    visit.field({"refusesSources", FieldRule::Flag}, state.refusesSources);
    visit.field({"input", FieldRule::Text, {"", "video 59.940", "ttl 120.000", "ttl - \"signal too slow\""}},
                state.input);
    visit.list("modes", state.modes, state, &ModeState::id);
    visit.field({"activeMode", FieldRule::Choice, state.offeredModes()}, state.activeMode);
    visit.list("cards", state.cards, state);
    visit.field({"cardsPresent", FieldRule::Flag}, state.cardsPresent);
}
