#pragma once

#include <QByteArray>

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
