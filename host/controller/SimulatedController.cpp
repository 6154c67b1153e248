#include "SimulatedController.h"

#include "ControllerVocabulary.h"

bool SimulatedController::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const bool isRaw = operation == Operation::Send;
    const bool isSet = operation == Operation::Set || (isRaw && command.startsWith("zorvan2 set "));
    if ((isRaw && !isSet && !command.startsWith("zorvan2 get ")) || (isSet && current.locked))
        return false;
    QStringList words = QString::fromLatin1(command).split(' ').mid(isRaw ? 2 : 0);
    const QString value = isSet ? words.takeLast() : QString();
    ParameterAccess access{&current};
    const Parameter* parameter = findParameter(words, &access);
    if (!parameter)
        return false;
    if (isSet) {
        const bool isTaken = parameter->set && parameter->set(access, value);
        *answer = isRaw ? command : QByteArray();
        if (isTaken)
            emit changed();
        return isTaken;
    }
    const QString read = parameter->get(access);
    *answer = (isRaw ? command + ' ' : QByteArray()) + read.toLatin1();
    return !read.isNull();
}

void SimulatedController::setState(const ControllerState& state)
{
    current = state;
    emit changed();
}
