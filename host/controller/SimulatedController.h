#pragma once

#include "ControllerTable.h"

#include <QObject>

struct Request;

/**
 * A tracking controller with synccards, but without hardware. It answers a read from its table. A write changes the
 * table. A command fails and changes nothing if it is newer than the protocol, if a rule refuses it, or if the table
 * has no answer to it.
 */
class SimulatedController : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit SimulatedController(const ControllerTable& initial) : current(initial) {}

    /**
     * Executes a command. A raw command is "zorvan2 get ..." or "zorvan2 set ...". Its reply line is the command,
     * followed by the value of a read.
     */
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    const ControllerTable& table() const { return current; }
    void setTable(const ControllerTable& table);

signals:
    /** Announces that a command or setTable() has changed the table. */
    void changed();

private:
    bool write(const Request& request);
    bool accepts(const Request& request) const;
    bool isBetween(const QByteArray& value, double minimum, const QByteArray& maximumCommand) const;
    void followSource(const QByteArray& card, const QByteArray& source);
    QByteArray answerTo(const QByteArray& command) const;

    ControllerTable current;
};
