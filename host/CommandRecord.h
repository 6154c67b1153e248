#pragma once

#include <QByteArray>

/** One command as it went over a channel. */
struct CommandRecord
{
    /** "send" for a raw command, "get", "int", "double", "bool" for the reads, "set"; "connect" before the first one.
     */
    QByteArray operation;
    /** The command as the module formatted it; of "connect" the protocol version and the controller's model. */
    QByteArray command;
    /** The value or reply line; empty for a set or a failure. */
    QByteArray answer;
    /** 0 on success. */
    int result;
    /** How long it took. */
    qint64 microseconds = 0;
};
