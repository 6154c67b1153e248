#include "Recorder.h"

#include "FileWriting.h"

#include <QFileInfo>

QString Recorder::start(const QString& name)
{
    const QFileInfo existing(name);
    if (existing.isFile())
        return name + ": this file exists. Name another one, or remove it first.";
    auto next = std::make_unique<QFile>(name);
    // Unbuffered, because after a failed write, closing the file must not write the rest.
    QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (!existing.exists())
        mode |= QIODevice::NewOnly;
    const QByteArray header = recordingHeader;
    if (!next->open(mode) || writeWhole(next.get(), header) != header.size()) {
        QString problem = name + ": " + next->errorString();
        if (next->isOpen() && !existing.exists())
            next->remove();
        return problem;
    }
    stop();
    file = std::move(next);
    isConnectionDue = true;
    time.start();
    emit started();
    return {};
}

void Recorder::stop()
{
    recordConnection();
    if (!isRecording())
        return;
    file.reset();
    emit ended({});
}

void Recorder::connected(const ControllerIdentity& controller)
{
    below->connected(controller);
    connection = connectionText(controller);
    isConnectionDue = true;
}

bool Recorder::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const bool isAnswered = below->execute(operation, command, answer);
    recordConnection();
    write({textOf(operation, command), isAnswered, isAnswered ? *answer : QByteArray()});
    return isAnswered;
}

/** Writes the current connection, unless the recording already has it. */
void Recorder::recordConnection()
{
    if (isConnectionDue && !connection.isEmpty())
        write({connection, true, {}});
    isConnectionDue = false;
}

/**
 * Writes a whole line. On failure, ends the recording and cuts it back to its last whole line, so that the recording
 * replays.
 */
void Recorder::write(const RecordedLine& line)
{
    if (!isRecording())
        return;
    const QByteArray bytes = line.toLine(time.elapsed());
    const qint64 wholeLines = file->pos();
    if (writeWhole(file.get(), bytes) == bytes.size())
        return;
    const QString problem = fileName() + ": " + file->errorString() + ". The recording ends here.";
    if (QFileInfo(fileName()).isFile()) // and not a device
        file->resize(wholeLines);
    file.reset();
    emit ended(problem);
}
