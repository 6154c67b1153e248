#pragma once

#include "Recording.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

#include <memory>

/** Writes commands and answers into a recording, one command per line. docs/workbench.md describes the format. */
class Recorder : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Recorder(ControllerLink* below) : below(below) {}

    /**
     * Starts the recording \a name in place of the current one. Only a device may exist already. Returns an error
     * message, or an empty string on success. After an error the current recording continues.
     */
    QString start(const QString& name);
    void stop();
    bool isRecording() const { return file != nullptr; }
    /** Returns the name of the recording. Call it only while recording. */
    QString fileName() const { return file->fileName(); }

    /** Records the connection with its first command, or at the end, so that no connection follows another one. */
    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

signals:
    void started();
    /** Announces the end of the recording. \a problem is the reason, or empty after stop(). */
    void ended(const QString& problem);

private:
    void recordConnection();
    void write(const RecordedLine& line);

    ControllerLink* below;
    std::unique_ptr<QFile> file; // null while not recording
    QByteArray connection;       // the connectionText() of the current one
    bool isConnectionDue = false;
    QElapsedTimer time;
};
