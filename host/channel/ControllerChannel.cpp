#include "ControllerChannel.h"

#include "ControllerLink.h"

#include <QElapsedTimer>

#include <clocale>
#include <cstdarg>
#include <cstdio>

static Q_ATTRIBUTE_FORMAT_PRINTF(1, 0) QByteArray formatted(const char* format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    QByteArray text(qMax(length, 0), '\0');
    static_cast<void>(vsnprintf(text.data(), static_cast<size_t>(text.size()) + 1, format, arguments));
    return text;
}

ControllerChannel::ControllerChannel(ControllerLink* link) : link(link)
{
    // In the user's locale, which QApplication has set, printf may write a decimal comma.
    static_cast<void>(std::setlocale(LC_NUMERIC, "C"));
}

// Formats the arguments of the surrounding function. This is a macro, because only that function can reach its "...".
#define FORMAT_COMMAND                                                                                                 \
    va_list arguments;                                                                                                 \
    va_start(arguments, format);                                                                                       \
    const QByteArray command = formatted(format, arguments);                                                           \
    va_end(arguments)

int ControllerChannel::sendCommand(char* answer, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerText(Operation::Send, command, answer);
}

int ControllerChannel::getParameter(char* answer, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerText(Operation::Get, command, answer);
}

int ControllerChannel::getParameterInt(int* result, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerValue(Operation::Int, command, result, [](auto& text, bool* ok) { return text.toInt(ok); });
}

int ControllerChannel::getParameterDouble(double* result, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerValue(Operation::Double, command, result, [](auto& text, bool* ok) { return text.toDouble(ok); });
}

int ControllerChannel::getParameterBool(bool* result, const char* format, ...)
{
    FORMAT_COMMAND;
    const auto convert = [](const QByteArray& value, bool* ok) {
        *ok = value == "yes" || value == "no";
        return value == "yes";
    };
    return answerValue(Operation::Bool, command, result, convert);
}

int ControllerChannel::setParameter(const char* format, ...)
{
    FORMAT_COMMAND;
    return carryOut(Operation::Set, command, [](const QByteArray* value) { return value != nullptr; });
}

int ControllerChannel::answerText(Operation operation, const QByteArray& command, char* answer)
{
    return carryOut(operation, command, [&](const QByteArray* value) {
        const bool fits = value && value->size() < traitsOf(textOf(operation, command)).bufferSize;
        qstrcpy(answer, fits ? value->constData() : "yes");
        return fits;
    });
}

template <typename Value, typename Convert>
int ControllerChannel::answerValue(Operation operation, const QByteArray& command, Value* result, Convert convert)
{
    return carryOut(operation, command, [&](const QByteArray* text) {
        bool isValue = false;
        const Value value = convert(text ? *text : QByteArray(), &isValue);
        *result = isValue ? value : Value(1);
        return isValue;
    });
}

/** Executes the command and lets \a take store the value. After a failure, \a take gets null and returns false. */
template <typename Take>
int ControllerChannel::carryOut(Operation operation, const QByteArray& command, Take take)
{
    QElapsedTimer timer;
    timer.start();
    QByteArray value;
    ++commandsUnderWay;
    const bool isTaken = take(link->execute(operation, command, &value) ? &value : nullptr);
    --commandsUnderWay;
    const int result = isTaken ? 0 : -1;
    emit executed({operation, command, isTaken ? value : QByteArray(), result, timer.nsecsElapsed() / 1000});
    return result;
}

void ControllerChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    emit reported(QString::fromLatin1(category), QString::fromLatin1(systemTag), flag, QString::fromLatin1(message));
}
