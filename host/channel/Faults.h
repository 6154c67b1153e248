#pragma once

#include "ControllerLink.h"

#include <QRegularExpression>

/** Makes chosen commands fail without reaching the link below, or take longer, to see how a module copes. */
class Faults : public ControllerLink
{
public:
    static constexpr int maximumLatency = 5000; // milliseconds

    explicit Faults(ControllerLink* below) : below(below) {}

    /** Fails the \a n-th command from now, 1 being the next; 0 fails none. Polls do not count. */
    void failNth(int n) { untilFailure = n; }
    int commandsToFailure() const { return untilFailure; }
    /** Fails every command in which \a expression is found; an empty one fails none. */
    void failMatching(const QRegularExpression& expression) { pattern = expression; }
    QRegularExpression failing() const { return pattern; }
    /** Lets each command take \a milliseconds longer, 0 to maximumLatency. */
    void setLatency(int milliseconds) { delay = qBound(0, milliseconds, maximumLatency); }
    int latency() const { return delay; }
    /** Waits in an event loop, as many real channels do, so that input and timers arrive, or sleeps. */
    void waitInEventLoop(bool isOn) { hasEventLoop = isOn; }

    void connected(const ControllerIdentity& controller) override { below->connected(controller); }
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

private:
    void wait() const;

    ControllerLink* below;
    QRegularExpression pattern;
    int untilFailure = 0;
    int delay = 0;
    bool hasEventLoop = false;
};
