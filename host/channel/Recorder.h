#pragma once

#include "Recording.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

/** Writes each command with its answer into a recording, a line each. docs/workbench.md describes the format. */
class Recorder : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Recorder(ControllerLink* below) : below(below) {}

    /**
     * Begins the recording \a name with the present connection, if there is one. Only a device may exist already.
     * Returns why the file cannot be written, or an empty text.
     */
    QString start(const QString& name);
    void stop();
    bool isRecording() const { return file.isOpen(); }
    QString fileName() const { return file.fileName(); }

    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

signals:
    void started();
    /** The recording has ended; \a problem says why it had to, and is empty after stop(). */
    void ended(const QString& problem);

private:
    QString write(const RecordedLine& line);
    QString write(const QByteArray& line);

    ControllerLink* below;
    QFile file;
    qint64 wholeSize = 0;  // bytes in whole lines
    QByteArray connection; // the text of the present one
    QElapsedTimer time;
};
