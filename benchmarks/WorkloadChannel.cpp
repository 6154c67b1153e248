#include "WorkloadChannel.h"

#include <cstdarg>
#include <cstring>
#include <string_view>

namespace {

void answerText(char* answer, const char* text)
{
    std::strcpy(answer, text); // NOLINT(clang-analyzer-security.insecureAPI.strcpy): the texts of this file
}

/** Answers \a prefix, \a number with three digits, and \a suffix, without a space between them. */
void answerNumber(char* answer, const char* prefix, int number, const char* suffix)
{
    answerText(answer, prefix);
    char* end = answer + std::strlen(answer);
    for (const int unit : {100, 10, 1})
        *end++ = static_cast<char>('0' + number / unit % 10);
    answerText(end, suffix);
}

} // namespace

// Declares the constant 'name' and gives it the first argument after the format.
// NOLINTBEGIN(bugprone-macro-parentheses): a type and a name cannot stand in parentheses
#define FIRST_ARGUMENT(type, name)                                                                                     \
    va_list arguments;                                                                                                 \
    va_start(arguments, format);                                                                                       \
    const auto name = va_arg(arguments, type);                                                                         \
    va_end(arguments)
// NOLINTEND(bugprone-macro-parentheses)

int WorkloadChannel::sendCommand(char* answer, const char* format, ...)
{
    ++commands;
    if (std::strcmp(format, "zorvan2 get synccard active_mode") == 0) {
        answerText(answer, "zorvan2 get synccard active_mode none");
        return 0;
    }
    FIRST_ARGUMENT(const char*, mode);
    answerText(answer, "zorvan2 get synccard mode_desc \"Mode ");
    std::strcat(answer, mode); // NOLINT(clang-analyzer-security.insecureAPI.strcpy): as short as getParameter() made it
    std::strcat(answer, "\""); // NOLINT(clang-analyzer-security.insecureAPI.strcpy)
    return 0;
}

int WorkloadChannel::getParameter(char* answer, const char* format, ...)
{
    ++commands;
    const std::string_view command(format);
    if (command == "synccard output_during_idle d01 ch%2.2d") {
        FIRST_ARGUMENT(int, channel);
        answerText(answer, isActiveDuringIdle(channel) ? "yes" : "no");
    } else if (command == "synccard mode t%02d") {
        FIRST_ARGUMENT(int, mode);
        answerNumber(answer, "m", mode, "");
    } else if (command == "synccard synccard d%02d") {
        FIRST_ARGUMENT(int, card);
        answerNumber(answer, "0x0402 10", card, "");
    } else if (command == "synccard model_desc %s") {
        answerText(answer, "\"Sync card\"");
    } else if (command == "synccard source d%2.2d") {
        answerText(answer, "internal");
    } else if (command == "synccard output d01") {
        answerText(answer, "ttl");
    } else if (command == "synccard input_frequency") {
        isOtherFrequency = alternates && !isOtherFrequency;
        answerText(answer, isOtherFrequency ? "ttl 120.000" : "video 59.940");
    } else {
        answerText(answer, "yes");
    }
    return 0;
}

int WorkloadChannel::getParameterInt(int* result, const char* format, ...)
{
    ++commands;
    const std::string_view command(format);
    if (command == "synccard number_of_synccards")
        *result = workload.cards;
    else if (command == "synccard number_of_modes")
        *result = workload.modes;
    else if (command == "synccard number_of_channels d01")
        *result = workload.channels;
    else
        *result = command == "synccard external_divisor d01" ? divisor : maximumDivisor;
    return 0;
}

int WorkloadChannel::getParameterDouble(double* result, const char* format, ...)
{
    ++commands;
    const std::string_view command(format);
    if (command == "synccard output_delay d01 ch%2.2d") {
        FIRST_ARGUMENT(int, channel);
        *result = delayMilliseconds(channel);
    } else if (command == "synccard max_output_delay d01") {
        *result = maximumDelayMilliseconds;
    } else {
        *result = command == "synccard internal_frequency d01" ? frequencyHz : maximumFrequencyHz;
    }
    return 0;
}

int WorkloadChannel::getParameterBool(bool* result, const char* /*format*/, ...)
{
    ++commands;
    *result = true;
    return 0;
}

int WorkloadChannel::setParameter(const char* /*format*/, ...)
{
    ++commands;
    return 0;
}

void WorkloadChannel::reportError(const char* /*category*/, const char* /*systemTag*/, int /*flag*/,
                                  const char* /*message*/)
{
    ++reports;
}
