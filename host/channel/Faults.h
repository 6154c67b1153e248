#pragma once

#include "ControllerLink.h"

#include <QRegularExpression>

/** Makes chosen commands fail before they reach the link below, or take longer, to test a module. */
class Faults : public ControllerLink
{
public:
    static constexpr int maximumLatency = 5000; // milliseconds

    explicit Faults(ControllerLink* below) : below(below) {}

    /** Fails the \a n-th command from now. 1 is the next command, 0 fails no command. Polls do not count. */
    void failNth(int n) { untilFailure = n; }
    int commandsToFailure() const { return untilFailure; }
    /** Fails every command in which \a expression is found. An empty expression fails no command. */
    void failMatching(const QRegularExpression& expression) { pattern = expression; }
    QRegularExpression failing() const { return pattern; }
    /** Lets each command take \a milliseconds longer, 0 to maximumLatency. */
    void setLatency(int milliseconds) { delay = milliseconds; }
    int latency() const { return delay; }
    /** Lets commands wait in an event loop, as many real channels do, so that input and timers arrive. */
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
