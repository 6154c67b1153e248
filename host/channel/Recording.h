#pragma once

#include "ControllerLink.h"

#include <QVector>

/** The first line of a recording. */
constexpr char recordingHeader[] = "synccard recording 1\n";

/** A line of a recording: a command, or the begin of a connection. */
struct RecordedLine
{
    /** "12.345 get synccard source d01 -> internal", or "... failed"; docs/workbench.md describes the format. */
    QByteArray toLine(qint64 milliseconds) const;

    QByteArray text; // the command behind its operation, or a connectionText()
    bool isAnswered;
    QByteArray answer;
    int number = 0; // in its file, from 1
};

/** "connect 1.23.0 QUILLSTONE 3": how a recording writes that a connection begins. */
QByteArray connectionText(const ControllerIdentity& controller);
/** Reads such a text into \a controller; false when it is none. */
bool readConnection(const QByteArray& text, ControllerIdentity* controller);

/**
 * Reads the recording \a file into \a lines; the first one is a connection. Empty lines and lines starting with "#" are
 * ignored. Returns "file:line: reason" when the file cannot be read or is damaged, or an empty text.
 */
QString readRecording(const QString& file, QVector<RecordedLine>* lines);
