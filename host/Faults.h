#pragma once

#include "ControllerLink.h"

#include <QRegularExpression>

/** A layer that breaks what is to be seen broken: commands fail without reaching the link below, or take their time. */
class Faults : public ControllerLink
{
public:
    static constexpr int maximumLatency = 5000; // milliseconds

    explicit Faults(ControllerLink* below) : below(below) {}

    /** Fails the \a n-th command from now, 1 being the next; 0 fails none. */
    void failNth(int n) { untilFailure = n; }
    int commandsToFailure() const { return untilFailure; }
    /** Fails every command in which \a expression is found; an empty one fails none. */
    void failMatching(const QRegularExpression& expression) { pattern = expression; }
    QRegularExpression failing() const { return pattern; }
    /** Lets each command take \a milliseconds, 0 to maximumLatency, longer: asleep, so that two never overlap. */
    void setLatency(int milliseconds) { delay = qBound(0, milliseconds, maximumLatency); }
    int latency() const { return delay; }

    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;

private:
    ControllerLink* below;
    QRegularExpression pattern;
    int untilFailure = 0;
    int delay = 0;
};
