#pragma once

#include "ControllerTable.h"

#include <QObject>

struct Request;

/**
 * A tracking controller with synccards, without the hardware. A read is answered from its table, a write changes the
 * table. Commands newer than its protocol, writes that a rule refuses, and everything that the table does not answer
 * fail and change nothing.
 */
class SimulatedController : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit SimulatedController(const ControllerTable& initial) : current(initial) {}

    /** A raw command is "zorvan2 get ..." or "zorvan2 set ...". Its reply line repeats it. The value of a read follows.
     */
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    const ControllerTable& table() const { return current; }
    void setTable(const ControllerTable& table);

signals:
    /** The table has changed, by a command or by setTable(). */
    void changed();

private:
    bool write(const Request& request);
    bool accepts(const Request& request) const;
    bool isBetween(const QByteArray& value, double minimum, const QByteArray& maximumCommand) const;
    void followSource(const QByteArray& card, const QByteArray& source);
    QByteArray answerTo(const QByteArray& command) const;

    ControllerTable current;
};
