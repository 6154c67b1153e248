#pragma once

#include "CommandRecord.h"
#include "IOManager.h"

/**
 * What every command channel does alike: formats commands and parses numbers with a decimal point whatever the user's
 * locale, and refuses an answer that does not fit the module's buffer. On a failure it fills the result with plausible
 * values, so that a module which uses them all the same is found out. GUI thread only.
 */
class FormattingChannel : public IOManager
{
public:
    int sendCommand(char* answer, const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameter(char* answer, const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterInt(int* result, const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterDouble(double* result, const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterBool(bool* result, const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int setParameter(const char* format, ...) final Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);

protected:
    /** Carries out \a command and writes its value, or a raw command's reply line, into \a answer; false on failure. */
    virtual bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) = 0;

    /** The command is answered. */
    virtual void finished(const CommandRecord& record) = 0;

private:
    template <typename Take>
    int carryOut(const char* operation, const QByteArray& command, Take take);
    int answerText(const char* operation, const QByteArray& command, char* answer);
};
