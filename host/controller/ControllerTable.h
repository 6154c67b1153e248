#pragma once

#include "ControllerLink.h"

#include <QHash>
#include <QSet>
#include <QVector>

/** Returns the newest protocol. A controller speaks it by default, and so do the tests. */
inline VersionInfo newestProtocol()
{
    return {1, 23, 0};
}

/** A controller's answer to one command. */
struct AnswerRow
{
    /** "synccard source d01", for instance. A row for a single operation starts with it: "set synccard source d01". */
    QByteArray command;
    QByteArray answer;
    bool isFailure = false; // The command fails.
};

/** A simulated controller: its identity, and its answers in a fixed order, one row per command. A plain value. */
class ControllerTable
{
public:
    QString description; // One line for the list of controllers. The controller itself never sends it.
    ControllerIdentity identity = {newestProtocol(), {}};

    const QVector<AnswerRow>& rows() const { return list; }
    /** Returns the row of \a command, or null. The next change makes the pointer invalid. */
    const AnswerRow* find(const QByteArray& command) const;
    /** Replaces the row with the same command, or appends \a row. */
    void insert(const AnswerRow& row);
    /** Removes the rows of \a commands. */
    void remove(const QSet<QByteArray>& commands);

private:
    QVector<AnswerRow> list;
    QHash<QByteArray, int> positions; // in the list, by command
};
