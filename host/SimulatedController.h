#pragma once

#include "ControllerState.h"

#include <QByteArray>

/** What the controller answers to one command line. */
struct ControllerReply
{
    bool ok = false;
    /** The whole reply line: the command, and after a blank the value of a get. */
    QByteArray line;
};

/**
 * A tracking controller with synccards, without the hardware: "zorvan2 get ..." reads its state, "zorvan2 set ..."
 * changes it. Unknown commands, commands newer than its protocol, values outside its limits and sets while it is
 * locked fail and change nothing.
 */
class SimulatedController
{
public:
    explicit SimulatedController(const ControllerState& initial) : current(initial) {}

    ControllerReply execute(const QByteArray& commandLine);

    const ControllerState& state() const { return current; }
    void setState(const ControllerState& state) { current = state; }

private:
    ControllerState current;
};
