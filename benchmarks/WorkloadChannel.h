#pragma once

#include "IOManager.h"
#include "Workload.h"

/** A command channel that takes almost no time: it recognises each command by its format and formats nothing. */
class WorkloadChannel : public IOManager
{
public:
    explicit WorkloadChannel(const Workload& workload) : workload(workload) {}

    int sendCommand(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameter(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterInt(int* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterDouble(double* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterBool(bool* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int setParameter(const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

    Workload workload;
    int commands = 0;        // number of commands so far
    int reports = 0;         // number of error reports so far; a single one makes the comparison invalid
    bool alternates = false; // whether each poll reads another frequency than the poll before

private:
    bool isOtherFrequency = false;
};
