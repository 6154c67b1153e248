#include "ControllerState.h"

#include <QJsonArray>

#include <algorithm>

namespace {

template <typename Items, typename Matches>
auto* findItem(const Items& items, Matches matches)
{
    const auto found = std::find_if(items.begin(), items.end(), matches);
    return found == items.end() ? nullptr : &*found;
}

template <typename Items, typename Convert>
QJsonArray toArray(const Items& items, Convert convert)
{
    QJsonArray array;
    for (const auto& item : items)
        array.append(convert(item));
    return array;
}

QJsonObject toObject(const SourceState& source)
{
    return {{"keyword", source.keyword},
            {"maxDivisor", source.maxDivisor},
            {"outputs", QJsonArray::fromStringList(source.outputs)}};
}

QJsonObject toObject(const ChannelState& channel)
{
    return {{"delay", channel.delay}, {"activeDuringIdle", channel.activeDuringIdle}};
}

QJsonObject toObject(const ModeState& mode)
{
    return {{"id", mode.id}, {"description", mode.description}};
}

QJsonObject toObject(const CardState& card)
{
    const auto convert = [](const auto& item) { return toObject(item); };
    return {{"model", card.model},
            {"serial", card.serial},
            {"description", card.description},
            {"sources", toArray(card.sources, convert)},
            {"source", card.source},
            {"frequency", card.frequency},
            {"maxFrequency", card.maxFrequency},
            {"divisor", card.divisor},
            {"output", card.output},
            {"maxDelay", card.maxDelay},
            {"channels", toArray(card.channels, convert)}};
}

} // namespace

const SourceState* CardState::findSource(const QString& keyword) const
{
    return findItem(sources, [&](const SourceState& offered) { return offered.keyword == keyword; });
}

bool ControllerState::hasMode(const QString& id) const
{
    return findItem(modes, [&](const ModeState& mode) { return mode.id == id; }) != nullptr;
}

ControllerState ControllerState::builtIn()
{
    CardState card;
    card.serial = "10427";
    card.description = "Sync card Q4";
    card.sources = {{"internal", 100, {"video", "ttl", "ttlinv"}},
                    {"video", 10, {"video", "ttl"}},
                    {"ttl", 100, {"ttl", "ttlinv"}},
                    {"ttlinv", 100, {"ttl", "ttlinv"}},
                    {"ttlboth", 50, {"ttl", "ttlinv"}}};
    card.output = "ttl";
    card.channels = {{0.0, true}, {0.25, true}, {1.5, false}, {2.75, false}};

    CardState second = card;
    second.model = "0x0405";
    second.serial = "10431";
    second.description = "Sync extension";

    ControllerState state;
    state.modes = {{"cam100", "Cameras at 100 Hz"},
                   {"cam200", "Cameras at 200 Hz"},
                   {"genlock", "Genlock to video"},
                   {"slave", "Follow external TTL"}};
    state.cards = {card, second};
    return state;
}

QJsonObject ControllerState::toJson() const
{
    const auto convert = [](const auto& item) { return toObject(item); };
    return {{"protocol", protocol.toString()},
            {"model", model},
            {"locked", locked},
            {"refusesSources", refusesSources},
            {"input", input},
            {"modes", toArray(modes, convert)},
            {"activeMode", activeMode},
            {"cards", toArray(cards, convert)},
            {"cardsPresent", cardsPresent}};
}
