#include "Faults.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

bool Faults::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    if (delay > 0)
        wait();
    const bool isPoll = traitsOf(textOf(operation, command)).isPolled;
    const bool isNth = !isPoll && untilFailure > 0 && --untilFailure == 0;
    const bool isMatching = !pattern.pattern().isEmpty() && pattern.match(QString::fromLatin1(command)).hasMatch();
    return !isNth && !isMatching && below->execute(operation, command, answer);
}

void Faults::wait() const
{
    if (!hasEventLoop) {
        QThread::msleep(static_cast<unsigned long>(delay));
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(delay, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}
