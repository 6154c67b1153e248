#pragma once

#include "ControllerLink.h"

#include <QVector>

/** The first line of a recording. */
constexpr char recordingHeader[] = "synccard recording 1\n";

/** A line of a recording: a command, or the start of a connection. */
struct RecordedLine
{
    /** Returns the line: "12.345 get synccard source d01 -> internal" or "... failed". */
    QByteArray toLine(qint64 milliseconds) const;

    QByteArray text; // the command after its operation, or a connectionText()
    bool isAnswered;
    QByteArray answer;
    int number = 0; // in its file, from 1
};

/** Returns the start of a connection as a recording writes it: "connect 1.23.0 QUILLSTONE 3". */
QByteArray connectionText(const ControllerIdentity& controller);
/** Reads a connectionText() into \a controller. Returns false if \a text is not one. */
bool readConnection(const QByteArray& text, ControllerIdentity* controller);

/**
 * Reads the recording \a file into \a lines. The first line is a connection. Empty lines and lines that start with "#"
 * are ignored. Returns an error message with file, line and reason, or an empty string on success.
 */
QString readRecording(const QString& file, QVector<RecordedLine>* lines);
