#pragma once

#include <QByteArray>

/** The kinds of commands that a command channel carries. */
enum class Operation {
    Send,   // a raw command, answered by the whole reply line
    Get,    // reads a parameter as text
    Int,    // reads a parameter as an integer
    Double, // reads a parameter as a double
    Bool,   // reads a parameter as a flag
    Set,    // sets a parameter
};

/** How recordings, the log and tests write \a operation: "send", "get", "int", "double", "bool" or "set". */
QByteArray textOf(Operation operation);

/** Whether \a text is such a text. */
bool isOperation(const QByteArray& text);

/** One command as it went over a channel. */
struct CommandRecord
{
    /** The command behind its operation, as recordings and tests write it: "get synccard source d01". */
    QByteArray text() const { return textOf(operation) + ' ' + command; }

    Operation operation;
    QByteArray command; // as the module formatted it
    QByteArray answer;  // the value or reply line; empty for a set or a failure
    int result;         // 0 on success
    qint64 microseconds = 0;
};
