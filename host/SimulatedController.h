#pragma once

#include "ControllerLink.h"
#include "ControllerState.h"

#include <QObject>

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
class SimulatedController : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit SimulatedController(const ControllerState& initial) : current(initial) {}

    ControllerReply execute(const QByteArray& commandLine);
    /** The same with the framing that the operation asks for. */
    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;

    const ControllerState& state() const { return current; }
    void setState(const ControllerState& state);

signals:
    /** The state is another one, by a command or by setState(). */
    void changed();

private:
    ControllerState current;
};
