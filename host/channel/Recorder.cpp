#include "Recorder.h"

#include "FileWriting.h"

#include <QFileInfo>

QString Recorder::start(const QString& name)
{
    const QFileInfo existing(name);
    if (existing.isFile())
        return name + ": this file exists; name another one, or remove it first";
    stop();
    file.setFileName(name);
    // Without a buffer: after a failed write nothing must be left that would be written when the file is closed.
    QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (!existing.exists())
        mode |= QIODevice::NewOnly;
    if (!file.open(mode))
        return name + ": " + file.errorString();
    wholeSize = 0;
    time.start();
    QString problem = write(recordingHeader);
    if (problem.isEmpty() && !connection.isEmpty())
        problem = write({connection, true, {}});
    if (problem.isEmpty())
        emit started();
    return problem;
}

void Recorder::stop()
{
    if (!isRecording())
        return;
    file.close();
    emit ended({});
}

void Recorder::connected(const ControllerIdentity& controller)
{
    below->connected(controller);
    connection = connectionText(controller);
    write({connection, true, {}});
}

bool Recorder::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const bool isAnswered = below->execute(operation, command, answer);
    write({textOf(operation, command), isAnswered, isAnswered ? *answer : QByteArray()});
    return isAnswered;
}

QString Recorder::write(const RecordedLine& line)
{
    return write(line.toLine(time.isValid() ? time.elapsed() : 0));
}

/**
 * Writes a whole line while there is a recording. If it cannot, it ends the recording and cuts it back to its last
 * whole line, so that it replays, and returns why.
 */
QString Recorder::write(const QByteArray& line)
{
    if (!isRecording())
        return {};
    const qint64 written = writeWhole(&file, line);
    if (written == line.size()) {
        wholeSize += written;
        return {};
    }
    QString problem = file.fileName() + ": " + file.errorString() + "; the recording ends here";
    const bool isFile = QFileInfo(file.fileName()).isFile(); // and no device
    if (isFile && wholeSize > 0)
        file.resize(wholeSize);
    file.close();
    if (isFile && wholeSize == 0)
        file.remove();
    emit ended(problem);
    return problem;
}
