#pragma once

#include "Recording.h"

#include <QElapsedTimer>
#include <QFile>

/** Writes each command with its answer into a recording, a line each. docs/workbench.md describes the format. */
class Recorder : public ControllerLink
{
public:
    explicit Recorder(ControllerLink* below) : below(below) {}

    /** Begins the recording \a name. False when the file cannot be written; errorString() says why. */
    bool open(const QString& name);
    QString errorString() const { return file.fileName() + ": " + file.errorString(); }

    void connected(const ControllerIdentity& controller) override;
    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

private:
    void write(const RecordedLine& line);

    ControllerLink* below;
    QFile file;
    QElapsedTimer time;
};
