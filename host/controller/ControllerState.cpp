#include "ControllerState.h"

#include <algorithm>

QVector<SourceState> CardState::builtInSources()
{
    return {{"internal", 100, {"video", "ttl", "ttlinv"}},
            {"video", 10, {"video", "ttl"}},
            {"ttl", 100, {"ttl", "ttlinv"}},
            {"ttlinv", 100, {"ttl", "ttlinv"}},
            {"ttlboth", 50, {"ttl", "ttlinv"}}};
}

const SourceState* CardState::findSource(const QString& keyword) const
{
    const auto isIt = [&](const SourceState& offered) { return offered.keyword == keyword; };
    const auto* found = std::find_if(sources.begin(), sources.end(), isIt);
    return found == sources.end() ? nullptr : found;
}

QStringList CardState::offeredSources() const
{
    QStringList keywords;
    for (const SourceState& offered : sources)
        keywords.append(offered.keyword);
    return keywords;
}

QStringList CardState::offeredOutputs() const
{
    const SourceState* current = findSource(source);
    return QStringList("none") + (current ? current->outputs : QStringList());
}

void CardState::select(const SourceState& offered)
{
    source = offered.keyword;
    divisor = qMin(divisor, offered.maxDivisor);
    if (!offered.outputs.contains(output))
        output = "none";
}

int CardState::maxDivisor() const
{
    const SourceState* current = findSource(source);
    return current ? current->maxDivisor : 1;
}

QStringList ControllerState::offeredModes() const
{
    QStringList ids = {"none"};
    for (const ModeState& mode : modes)
        ids.append(mode.id);
    return ids;
}

ControllerState ControllerState::builtIn()
{
    CardState card;
    card.serial = "10427";
    card.description = "Sync card Q4";
    card.output = "ttl";
    card.channels = {{0.0, true}, {0.25, true}, {1.5, false}, {2.75, false}};

    CardState second = card;
    second.model = "0x0405";
    second.serial = "10431";
    second.description = "Sync extension";

    ControllerState state;
    state.description = "Protocol 1.23 with everything: the built-in controller";
    state.modes = {{"cam100", "Cameras at 100 Hz"},
                   {"cam200", "Cameras at 200 Hz"},
                   {"genlock", "Genlock to video"},
                   {"slave", "Follow external TTL"}};
    state.cards = {card, second};
    return state;
}
