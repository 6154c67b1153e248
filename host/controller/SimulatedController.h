#pragma once

#include "ControllerState.h"

#include <QObject>

/**
 * A tracking controller with synccards, without the hardware: a get reads its state, a set changes it. Unknown
 * commands, commands newer than its protocol, values outside its limits and sets while it is locked fail and change
 * nothing.
 */
class SimulatedController : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit SimulatedController(const ControllerState& initial) : current(initial) {}

    /** A raw command is "zorvan2 get ..." or "zorvan2 set ...". Its reply line repeats it; the value of a get follows.
     */
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    const ControllerState& state() const { return current; }
    void setState(const ControllerState& state);

signals:
    /** The state has changed, by a command or by setState(). */
    void changed();

private:
    ControllerState current;
};
