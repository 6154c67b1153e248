#include "FormattingChannel.h"

#include <QElapsedTimer>

#include <cstdarg>
#include <cstdio>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale() is not in <clocale>

namespace {

/** In its scope the C library formats numbers with a decimal point; QApplication sets the user's locale for all. */
class DecimalPoint
{
public:
    DecimalPoint() : plain(newlocale(LC_NUMERIC_MASK, "C", nullptr)), previous(uselocale(plain)) {}
    ~DecimalPoint()
    {
        uselocale(previous);
        freelocale(plain);
    }
    Q_DISABLE_COPY(DecimalPoint)

private:
    locale_t plain;
    locale_t previous;
};

Q_ATTRIBUTE_FORMAT_PRINTF(1, 0) QByteArray formatted(const char* format, va_list arguments)
{
    const DecimalPoint scope;
    va_list again;
    va_copy(again, arguments);
    const int length = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    QByteArray text(qMax(length, 0), '\0');
    static_cast<void>(vsnprintf(text.data(), static_cast<size_t>(text.size()) + 1, format, arguments));
    return text;
}

/** The size of the buffer that the module hands over for a text read of \a command, its terminator included. */
int bufferSize(const QByteArray& command)
{
    if (command == "synccard has_input_frequency")
        return 16;
    return command == "synccard output d01" ? 100 : 200;
}

} // namespace

// The command that "format, ..." of the surrounding function makes. A macro: only that function can reach its "...".
#define FORMAT_COMMAND                                                                                                 \
    va_list arguments;                                                                                                 \
    va_start(arguments, format);                                                                                       \
    const QByteArray command = formatted(format, arguments);                                                           \
    va_end(arguments)

int FormattingChannel::sendCommand(char* answer, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerText("send", command, answer);
}

int FormattingChannel::getParameter(char* answer, const char* format, ...)
{
    FORMAT_COMMAND;
    return answerText("get", command, answer);
}

int FormattingChannel::getParameterInt(int* result, const char* format, ...)
{
    FORMAT_COMMAND;
    return carryOut("int", command, [result](const QByteArray* value) {
        bool isNumber = false;
        const int number = value ? value->toInt(&isNumber) : 0;
        *result = isNumber ? number : 1;
        return isNumber;
    });
}

int FormattingChannel::getParameterDouble(double* result, const char* format, ...)
{
    FORMAT_COMMAND;
    return carryOut("double", command, [result](const QByteArray* value) {
        bool isNumber = false;
        const double number = value ? value->toDouble(&isNumber) : 0.0;
        *result = isNumber ? number : 1.0;
        return isNumber;
    });
}

int FormattingChannel::getParameterBool(bool* result, const char* format, ...)
{
    FORMAT_COMMAND;
    return carryOut("bool", command, [result](const QByteArray* value) {
        const bool isFlag = value && (*value == "yes" || *value == "no");
        *result = !isFlag || *value == "yes";
        return isFlag;
    });
}

int FormattingChannel::setParameter(const char* format, ...)
{
    FORMAT_COMMAND;
    return carryOut("set", command, [](const QByteArray* value) { return value != nullptr; });
}

int FormattingChannel::answerText(const char* operation, const QByteArray& command, char* answer)
{
    return carryOut(operation, command, [&](const QByteArray* value) {
        const bool fits = value && value->size() < bufferSize(command);
        qstrcpy(answer, fits ? value->constData() : "yes");
        return fits;
    });
}

/** Executes the command and lets \a take store its value; \a take gets null, and returns false, on a failure. */
template <typename Take>
int FormattingChannel::carryOut(const char* operation, const QByteArray& command, Take take)
{
    QElapsedTimer timer;
    timer.start();
    QByteArray value;
    const bool isTaken = take(execute(operation, command, &value) ? &value : nullptr);
    const int result = isTaken ? 0 : -1;
    finished({operation, command, isTaken ? value : QByteArray(), result, timer.nsecsElapsed() / 1000});
    return result;
}
