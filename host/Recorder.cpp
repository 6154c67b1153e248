#include "Recorder.h"

#include "Recording.h"

bool Recorder::open(const QString& name)
{
    file.setFileName(name);
    time.start();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(recordingHeader) > 0 && file.flush();
}

bool Recorder::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    const bool isAnswered = below->execute(operation, command, answer);
    if (file.isOpen()) {
        file.write(
            toLine({operation, command, isAnswered ? *answer : QByteArray(), isAnswered ? 0 : -1}, time.elapsed()));
        file.flush(); // what was recorded must outlive a crash
    }
    return isAnswered;
}
