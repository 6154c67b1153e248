#include "Faults.h"

#include <QThread>

bool Faults::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    if (delay > 0)
        QThread::msleep(static_cast<unsigned long>(delay));
    const bool isNth = untilFailure > 0 && --untilFailure == 0;
    const bool isMatching = !pattern.pattern().isEmpty() && pattern.match(QString::fromLatin1(command)).hasMatch();
    return !isNth && !isMatching && below->execute(operation, command, answer);
}
