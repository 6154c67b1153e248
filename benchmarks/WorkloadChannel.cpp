#include "WorkloadChannel.h"

#include <cstring>

namespace {

struct Row
{
    std::string_view parameter;
    const char* answer;
};

constexpr Row table[] = {
    {"synccard", "0x0402 4711"},
    {"model_desc", "\"Sync card\""},
    {"mode", "m100"},
    {"mode_desc", "zorvan2 get synccard mode_desc m100 \"Mode m100\""},
    {"active_mode", "zorvan2 get synccard active_mode none"},
    {"source", "internal"},
    {"output", "ttl"},
};

} // namespace

/**
 * Counts \a command and returns the name of its parameter: "source" of "synccard source d01", "active_mode" of "zorvan2
 * get synccard active_mode".
 */
std::string_view WorkloadChannel::readParameter(std::string_view command)
{
    ++reads;
    const std::string_view raw = "zorvan2 get ";
    if (command.substr(0, raw.size()) == raw)
        command.remove_prefix(raw.size());
    command.remove_prefix(command.find(' ') + 1);
    return command.substr(0, command.find(' '));
}

int WorkloadChannel::answerText(char* answer, const char* command)
{
    const std::string_view parameter = readParameter(command);
    const char* text = parameter == "input_frequency" ? inputFrequency : "yes";
    for (const Row& row : table) {
        if (row.parameter == parameter)
            text = row.answer;
    }
    std::strcpy(answer, text); // NOLINT(clang-analyzer-security.insecureAPI.strcpy): the texts of the table
    return 0;
}

int WorkloadChannel::getParameterInt(int* result, const char* format, ...)
{
    const std::string_view parameter = readParameter(format);
    if (parameter == "number_of_synccards")
        *result = workload.cards;
    else if (parameter == "number_of_modes")
        *result = workload.modes;
    else
        *result = parameter == "number_of_channels" ? workload.channels : 1;
    return 0;
}

int WorkloadChannel::getParameterDouble(double* result, const char* format, ...)
{
    *result = readParameter(format).substr(0, 4) == "max_" ? maximumValue : usualValue;
    return 0;
}

int WorkloadChannel::getParameterBool(bool* result, const char* format, ...)
{
    *result = !readParameter(format).empty();
    return 0;
}
