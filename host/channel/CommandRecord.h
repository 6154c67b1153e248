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

/** Returns the name of \a operation in recordings, log and tests: "send", "get", "int", "double", "bool" or "set". */
QByteArray textOf(Operation operation);

/** Returns true if \a text is an operation name. */
bool isOperation(const QByteArray& text);

/** Returns a command after its operation, as recordings and tests write it: "get synccard source d01". */
inline QByteArray textOf(Operation operation, const QByteArray& command)
{
    return textOf(operation) + ' ' + command;
}

/** One command that a channel has carried. */
struct CommandRecord
{
    /** Returns the command after its operation. */
    QByteArray text() const { return textOf(operation, command); }

    Operation operation;
    QByteArray command; // as the module formatted it
    QByteArray answer;  // the value or reply line, empty for a set or a failure
    int result;         // 0 on success
    qint64 microseconds = 0;
};

/** Properties of a command and of its use by modules. */
struct CommandTraits
{
    const char* command;
    int bufferSize;     // of the buffer for a string answer, including its terminator
    bool isPolled;      // sent each second while the dialog is open
    bool beginsOpening; // sent once, near the start of each opening
};

/** Returns the traits of a command after its operation, such as "get synccard available". */
const CommandTraits& traitsOf(const QByteArray& command);
