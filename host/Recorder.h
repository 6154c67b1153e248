#pragma once

#include "ControllerLink.h"

#include <QElapsedTimer>
#include <QFile>

/** A layer that writes each command with its answer, a line each, into a recording; docs/workbench.md tells how. */
class Recorder : public ControllerLink
{
public:
    explicit Recorder(ControllerLink* below) : below(below) {}

    /** Begins the recording \a name. False when the file cannot be written; errorString() says why. */
    bool open(const QString& name);
    QString errorString() const { return file.fileName() + ": " + file.errorString(); }

    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;

private:
    ControllerLink* below;
    QFile file;
    QElapsedTimer time;
};
