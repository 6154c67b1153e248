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

/** A command behind its operation, as recordings and tests write it: "get synccard source d01". */
inline QByteArray textOf(Operation operation, const QByteArray& command)
{
    return textOf(operation) + ' ' + command;
}

/** One command as it went over a channel. */
struct CommandRecord
{
    /** The command behind its operation. */
    QByteArray text() const { return textOf(operation, command); }

    Operation operation;
    QByteArray command; // as the module formatted it
    QByteArray answer;  // the value or reply line; empty for a set or a failure
    int result;         // 0 on success
    qint64 microseconds = 0;
};

/** How modules use a command. */
struct CommandTraits
{
    const char* command;
    int bufferSize;     // of the buffer for a text answer, its terminator included
    bool isPolled;      // asked each second while the dialog is open
    bool beginsOpening; // asked once near the start of each opening
};

/** The traits of a command behind its operation, such as "get synccard available". */
const CommandTraits& traitsOf(const QByteArray& command);
