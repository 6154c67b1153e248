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
        const CommandRecord record{operation, command, isAnswered ? *answer : QByteArray(), isAnswered ? 0 : -1};
        // Flushed at once: what was recorded must outlive a crash.
        if (file.write(toLine(record, time.elapsed())) < 0 || !file.flush()) {
            qWarning("%s; the recording ends here", qPrintable(errorString()));
            file.close();
        }
    }
    return isAnswered;
}
