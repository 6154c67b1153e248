#include "Recorder.h"

bool Recorder::open(const QString& name)
{
    file.setFileName(name);
    time.start();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(recordingHeader) > 0 && file.flush();
}

void Recorder::connected(const ControllerIdentity& controller)
{
    below->connected(controller);
    write({connectionText(controller), true, {}});
}

bool Recorder::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const bool isAnswered = below->execute(operation, command, answer);
    write({textOf(operation) + ' ' + command, isAnswered, isAnswered ? *answer : QByteArray()});
    return isAnswered;
}

/** Flushes each line: a recording survives a crash of the program. */
void Recorder::write(const RecordedLine& line)
{
    if (!file.isOpen() || (file.write(line.toLine(time.elapsed())) >= 0 && file.flush()))
        return;
    qWarning("%s; the recording ends here", qPrintable(errorString()));
    file.close();
}
