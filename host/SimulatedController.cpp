#include "SimulatedController.h"

#include "ControllerVocabulary.h"

ControllerReply SimulatedController::execute(const QByteArray& commandLine)
{
    QStringList words = QString::fromLatin1(commandLine).split(' ');
    const bool isGet = words.value(1) == "get";
    const bool isSet = words.value(1) == "set";
    if (words.value(0) != "zorvan2" || !(isGet || isSet) || words.size() < 4 || (isSet && current.locked))
        return {};
    words.erase(words.begin(), words.begin() + 2);
    const QString value = isSet ? words.takeLast() : QString();

    ParameterAccess access(&current);
    const Parameter* parameter = findParameter(words, &access);
    if (!parameter)
        return {};
    if (isSet) {
        const bool taken = parameter->set && parameter->set(access, value);
        if (taken)
            emit changed();
        return {taken, commandLine};
    }
    const QString answer = parameter->get(access);
    return {!answer.isNull(), commandLine + ' ' + answer.toLatin1()};
}

bool SimulatedController::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    if (operation == "connect")
        return true;
    if (operation == "set")
        return execute("zorvan2 set " + command).ok;
    const bool isRaw = operation == "send";
    const QByteArray line = isRaw ? command : "zorvan2 get " + command;
    const ControllerReply reply = execute(line);
    // The reply line repeats the command, and the value follows.
    *answer = isRaw ? reply.line : reply.line.mid(line.size() + 1);
    return reply.ok;
}

void SimulatedController::setState(const ControllerState& state)
{
    current = state;
    emit changed();
}
