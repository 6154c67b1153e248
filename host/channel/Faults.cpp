#include "Faults.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

bool Faults::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    if (delay > 0)
        wait(traitsOf(textOf(operation, command)).isPolled);
    const bool isNth = untilFailure > 0 && --untilFailure == 0;
    const bool isMatching = !pattern.pattern().isEmpty() && pattern.match(QString::fromLatin1(command)).hasMatch();
    return !isNth && !isMatching && below->execute(operation, command, answer);
}

void Faults::wait(bool isPoll)
{
    if (!isPoll)
        emit waiting(true);
    if (hasEventLoop) {
        QEventLoop loop;
        QTimer::singleShot(delay, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    } else {
        QThread::msleep(static_cast<unsigned long>(delay));
    }
    if (!isPoll)
        emit waiting(false);
}
