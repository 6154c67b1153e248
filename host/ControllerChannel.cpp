#include "ControllerChannel.h"

#include "LocaleFreeFormat.h"
#include "SimulatedController.h"

#include <cstring>

namespace {

/** The size of the buffer that the module hands over for a text read of \a command, its terminator included. */
int bufferSize(const QByteArray& command)
{
    if (command == "synccard has_input_frequency")
        return 16;
    return command == "synccard output d01" ? 100 : 200;
}

} // namespace

int ControllerChannel::sendCommand(char* answer, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    const ControllerReply reply = controller->execute(command);
    return answerText("sendCommand", command, reply.ok, reply.line, answer);
}

int ControllerChannel::getParameter(char* answer, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    QByteArray value;
    const bool taken = getValue(command, &value);
    return answerText("getParameter", command, taken, value, answer);
}

int ControllerChannel::getParameterInt(int* result, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    QByteArray value;
    bool ok = getValue(command, &value);
    const int number = value.toInt(ok ? &ok : nullptr);
    if (ok)
        *result = number;
    return finish("getParameterInt", command, ok, value);
}

int ControllerChannel::getParameterDouble(double* result, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    QByteArray value;
    bool ok = getValue(command, &value);
    const double number = value.toDouble(ok ? &ok : nullptr);
    if (ok)
        *result = number;
    return finish("getParameterDouble", command, ok, value);
}

int ControllerChannel::getParameterBool(bool* result, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    QByteArray value;
    const bool ok = getValue(command, &value) && (value == "yes" || value == "no");
    if (ok)
        *result = value == "yes";
    return finish("getParameterBool", command, ok, value);
}

int ControllerChannel::setParameter(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray command = formatLocaleFree(format, arguments);
    va_end(arguments);
    return finish("setParameter", command, controller->execute("zorvan2 set " + command).ok, QByteArray());
}

void ControllerChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    emit reported(QString::fromLatin1(category), QString::fromLatin1(systemTag), flag, QString::fromLatin1(message));
}

/** Reads the parameter: the reply line repeats the framed command, and the value follows. */
bool ControllerChannel::getValue(const QByteArray& command, QByteArray* value)
{
    const QByteArray line = "zorvan2 get " + command;
    const ControllerReply reply = controller->execute(line);
    *value = reply.line.mid(line.size() + 1);
    return reply.ok;
}

int ControllerChannel::answerText(const char* operation, const QByteArray& command, bool taken, const QByteArray& text,
                                  char* answer)
{
    const bool fits = text.size() < bufferSize(command);
    if (taken && fits)
        std::memcpy(answer, text.constData(), static_cast<size_t>(text.size()) + 1);
    return finish(operation, command, taken && fits, text);
}

int ControllerChannel::finish(const char* operation, const QByteArray& command, bool ok, const QByteArray& answer)
{
    const int result = ok ? 0 : -1;
    emit executed({operation, command, ok ? answer : QByteArray(), result});
    return result;
}
