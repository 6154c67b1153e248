#pragma once

#include "Recording.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

#include <memory>

/** Writes each command with its answer into a recording, one per line. docs/workbench.md describes the format. */
class Recorder : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Recorder(ControllerLink* below) : below(below) {}

    /**
     * Starts the recording \a name in place of the present one. Only a device may exist already. Returns an error
     * message, and the present recording goes on, or an empty string on success.
     */
    QString start(const QString& name);
    void stop();
    bool isRecording() const { return file != nullptr; }
    /** Only while recording. */
    QString fileName() const { return file->fileName(); }

    /** The connection is recorded with its first command, or at the end, so that no two follow each other. */
    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

signals:
    void started();
    /** The recording has ended. \a problem is the reason, or empty after stop(). */
    void ended(const QString& problem);

private:
    void recordConnection();
    void write(const RecordedLine& line);

    ControllerLink* below;
    std::unique_ptr<QFile> file; // null while there is no recording
    qint64 wholeSize = 0;        // bytes in whole lines
    QByteArray connection;       // the text of the present one
    bool isConnectionDue = false;
    QElapsedTimer time;
};
