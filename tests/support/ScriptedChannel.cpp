#include "ScriptedChannel.h"

#include "LocaleFreeFormat.h"

#include <QFile>

ScriptedChannel::ScriptedChannel()
{
    QFile file(DATA_DIR "/standard-controller.txt");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    script(file.readAll().replace('\n', ';'));
}

void ScriptedChannel::script(const QByteArray& changes)
{
    const QByteArrayList all = changes.split(';');
    for (const QByteArray& change : all) {
        const int separator = change.indexOf('=');
        if (separator > 0)
            answers.insert(change.left(separator), change.mid(separator + 1));
    }
}

QByteArrayList ScriptedChannel::takeCommands()
{
    return std::exchange(commands, {});
}

QByteArrayList ScriptedChannel::takeReports()
{
    return std::exchange(reports, {});
}

/** True with the answer when the script knows the command, alone or behind its operation, and does not fail it. */
bool ScriptedChannel::ask(const char* operation, const char* format, va_list arguments, QByteArray* answer)
{
    const QByteArray text = formatLocaleFree(format, arguments);
    const QByteArray command = operation + (' ' + text);
    commands.append(command);
    *answer = answers.value(command, answers.value(text, "!"));
    return *answer != "!";
}

#define ASK(operation)                                                                                                 \
    QByteArray value;                                                                                                  \
    va_list arguments;                                                                                                 \
    va_start(arguments, format);                                                                                       \
    bool ok = ask(operation, format, arguments, &value);                                                               \
    va_end(arguments)

int ScriptedChannel::sendCommand(char* answer, const char* format, ...)
{
    ASK("send");
    qstrcpy(answer, ok ? value.constData() : "garbage after a failure");
    return ok ? 0 : 7;
}

int ScriptedChannel::getParameter(char* answer, const char* format, ...)
{
    ASK("get");
    qstrcpy(answer, ok ? value.constData() : "yes");
    return ok ? 0 : -1;
}

int ScriptedChannel::getParameterInt(int* result, const char* format, ...)
{
    ASK("int");
    *result = value.toInt(ok ? &ok : nullptr);
    return ok ? 0 : 1;
}

int ScriptedChannel::getParameterDouble(double* result, const char* format, ...)
{
    ASK("double");
    *result = value.toDouble(ok ? &ok : nullptr);
    return ok ? 0 : 1;
}

int ScriptedChannel::getParameterBool(bool* result, const char* format, ...)
{
    ASK("bool");
    *result = !ok || value == "yes";
    return ok ? 0 : 1;
}

int ScriptedChannel::setParameter(const char* format, ...)
{
    ASK("set");
    const QByteArray text = commands.last().mid(4);
    const QByteArray name = text.left(text.lastIndexOf(' '));
    ok = answers.value(commands.last()) != "!";
    if (ok && answers.contains(name))
        answers.insert(name, text.mid(name.size() + 1));
    return ok ? 0 : -5;
}

void ScriptedChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    const bool isConvention = qstrcmp(category, "standard") == 0 && qstrcmp(systemTag, "ZORVAN3") == 0 && flag == 1;
    reports.append(isConvention ? QByteArray(message) : "wrong convention: " + QByteArray(message));
}
