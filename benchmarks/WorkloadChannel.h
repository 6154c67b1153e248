#pragma once

#include "IOManager.h"

#include <QStringList>

#include <string_view>

/** The number of channels, modes and cards of a controller. Both dialogs of a comparison show the same workload. */
struct Workload
{
    int channels;
    int modes;
    int cards;

    QString name() const { return QString("%1/%2/%3").arg(channels).arg(modes).arg(cards); }
};

// The values that the controller answers and both dialogs show: Hz for the frequency, milliseconds for each delay.
constexpr double usualValue = 120.25;
constexpr double maximumValue = 300.0;

/**
 * A command channel that takes almost no time. It answers by the name of the parameter and formats nothing, so all
 * channels, modes and cards have the same values. The value of an unknown parameter is "yes", true, 1 or 120.25.
 */
class WorkloadChannel : public IOManager
{
public:
    explicit WorkloadChannel(const Workload& workload) : workload(workload) {}

    int sendCommand(char* answer, const char* format, ...) override { return answerText(answer, format); }
    int getParameter(char* answer, const char* format, ...) override { return answerText(answer, format); }
    int getParameterInt(int* result, const char* format, ...) override;
    int getParameterDouble(double* result, const char* format, ...) override;
    int getParameterBool(bool* result, const char* format, ...) override;
    /** Fails, so that the module reports an unexpected write. An opening writes nothing. */
    int setParameter(const char* /*format*/, ...) override { return -1; }
    void reportError(const char*, const char*, int, const char* message) override { reports.append(message); }

    const Workload workload;
    const char* inputFrequency = "video 59.940"; // the answer to "synccard input_frequency"
    int reads = 0;                               // the number of commands read so far
    QStringList reports;

private:
    int answerText(char* answer, const char* command);
    std::string_view readParameter(std::string_view command);
};
