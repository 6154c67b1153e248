#pragma once

#include "Recording.h"

#include <QMap>
#include <QObject>

/**
 * Answers from a recording in place of a controller. Commands must come in the recorded order; the first one that
 * differs fails, and all that follow fail. A poll is answered from the last poll recorded before the command that is
 * due, "no" when there is none. Polls are never compared: their number depends on how long somebody looked.
 */
class Replay : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Replay(const QString& file) : file(file) {}

    /** Reads the recording. Returns file, line and reason when it is damaged, or an empty text. */
    QString open() { return readRecording(file, &lines); }

    /** The controller of the first connection. Only after open(). */
    ControllerIdentity recordedController() const;

    QString fileName() const { return file; }

    /** Whether every command of the recording has been asked. */
    bool isAtEnd() const;

    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

signals:
    /** A command differs from the recording. \a problem names the line, what was expected and what was found. */
    void differed(const QString& problem);

private:
    int nextCommand() const;
    /** The recorded line for what is asked; a failed one when it is not the one that is due. */
    RecordedLine take(const RecordedLine& asked);

    QString file;
    bool hasDiffered = false;
    QVector<RecordedLine> lines;
    QMap<QByteArray, RecordedLine> polls;
    int position = 0;
};
