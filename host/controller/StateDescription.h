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

// The fields of each record, described once for reading, writing and editing. The visitor is called with a field's rule
// and the field; for a list with its key, the list, the record around it, and the field that must differ between its
// entries, if any. A limit is visited before what it limits.

template <typename Visitor>
void describe(Visitor& visit, ModeState& mode, const ControllerState& /*state*/)
{
    visit({"id", FieldRule::Word, {}, {}, 0.0, 0.0, "none", "direct settings"}, mode.id);
    visit({"description"}, mode.description);
}

template <typename Visitor>
void describe(Visitor& visit, SourceState& source, const CardState& /*card*/)
{
    visit({"keyword", FieldRule::Word}, source.keyword);
    visit({"maxDivisor", FieldRule::WholeNumber, {}, {}, 1, largestInt}, source.maxDivisor);
    visit({"outputs"}, source.outputs);
}

template <typename Visitor>
void describe(Visitor& visit, ChannelState& channel, const CardState& card)
{
    visit({"delay", FieldRule::Number, {}, "ms", 0.0, card.maxDelay}, channel.delay);
    visit({"activeDuringIdle", FieldRule::Flag}, channel.activeDuringIdle);
}

template <typename Visitor>
void describe(Visitor& visit, CardState& card, const ControllerState& /*state*/)
{
    constexpr double minimum = CardState::minimumFrequency;
    visit({"model", FieldRule::Word}, card.model);
    visit({"serial"}, card.serial);
    visit({"description"}, card.description);
    visit("sources", card.sources, card, &SourceState::keyword);
    visit({"source", FieldRule::Choice, card.offeredSources()}, card.source);
    visit({"maxFrequency", FieldRule::Number, {}, "Hz", minimum, unlimited}, card.maxFrequency);
    visit({"frequency", FieldRule::Number, {}, "Hz", minimum, card.maxFrequency}, card.frequency);
    visit({"divisor", FieldRule::WholeNumber, {}, {}, 1, static_cast<double>(card.maxDivisor())}, card.divisor);
    visit({"output", FieldRule::Choice, card.offeredOutputs()}, card.output);
    visit({"maxDelay", FieldRule::Number, {}, "ms", 0.0, unlimited}, card.maxDelay);
    visit("channels", card.channels, card);
}

template <typename Visitor>
void describe(Visitor& visit, ControllerState& state)
{
    visit({"description", FieldRule::Line}, state.description);
    // The examples are the versions at which what the dialog asks changes, and an input of each kind.
    const QString versions = "0.7.9 0.8.0 0.12.7 0.13.0 1.1.0 1.2.0 1.5.0 1.9.0 1.10.0 1.11.0 1.15.0 1.22.0 1.23.0";
    visit({"protocol", FieldRule::Version, versions.split(' ')}, state.protocol);
    visit({"model"}, state.model);
    visit({"locked", FieldRule::Flag}, state.locked);
    visit({"refusesSources", FieldRule::Flag}, state.refusesSources);
    visit({"input", FieldRule::Text, {"", "video 59.940", "ttl 120.000", "ttl - \"signal too slow\""}}, state.input);
    visit("modes", state.modes, state, &ModeState::id);
    visit({"activeMode", FieldRule::Choice, state.offeredModes()}, state.activeMode);
    visit("cards", state.cards, state);
    visit({"cardsPresent", FieldRule::Flag}, state.cardsPresent);
}
