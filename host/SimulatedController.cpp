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
        return {taken, commandLine};
    }
    const QString answer = parameter->get(access);
    return {!answer.isNull(), commandLine + ' ' + answer.toLatin1()};
}
