#pragma once

#include "Recording.h"

#include <QMap>
#include <QObject>

/**
 * Answers from a recording in place of a controller. Commands must come in the recorded order. The first command that
 * differs fails, and so do all later commands. A poll gets the last answer recorded before the command that is due, or
 * "no" without one. Polls are never compared, because their number depends on how long the dialog was open.
 */
class Replay : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Replay(const QString& file) : file(file) {}

    /** Reads the recording. Returns an error message with file, line and reason, or an empty string on success. */
    QString open() { return readRecording(file, &lines); }

    /** Returns the controller of the first connection. Call it only after open(). */
    ControllerIdentity recordedController() const;

    QString fileName() const { return file; }

    /** Returns true if every command of the recording has been sent. */
    bool isAtEnd() const;

    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

signals:
    /** Announces a command that differs from the recording. \a problem names line, expected and found command. */
    void differed(const QString& problem);

private:
    int nextCommand() const;
    /** Returns the recorded line for \a asked, or a failed line if another command is due. */
    RecordedLine take(const RecordedLine& asked);

    QString file;
    bool hasDiffered = false;
    QVector<RecordedLine> lines;
    QMap<QByteArray, RecordedLine> polls;
    int position = 0;
};
