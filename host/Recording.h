#pragma once

#include "CommandRecord.h"

#include <QString>
#include <QVector>

/** The first line of a recording. */
constexpr char recordingHeader[] = "synccard recording 1\n";

/** A command of a recording and the line it stands in, counted from 1. */
struct RecordedCommand
{
    CommandRecord record;
    int line;
};

/**
 * The line "12.345 get synccard source d01 -> internal", or "12.345 get synccard source d01 failed", with the time in
 * seconds. Texts are UTF-8; docs/workbench.md tells how a backslash, a line break and an arrow are written in them.
 */
QByteArray toLine(const CommandRecord& record, qint64 milliseconds);

/**
 * Reads the recording \a file into \a commands. Empty lines and lines that begin with "#" count for nothing. False
 * with "file:line: reason" in \a error when it cannot be read or is damaged.
 */
bool readRecording(const QString& file, QVector<RecordedCommand>* commands, QString* error);
