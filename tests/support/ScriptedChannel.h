#pragma once

#include "IOManager.h"

#include <QByteArrayList>
#include <QMap>

#include <cstdarg>

/**
 * The command channel of all tests: answers from a table, records every command behind the operation's name ("get
 * synccard available"), takes over what is set, and fails what it is told to fail.
 */
class ScriptedChannel : public IOManager
{
public:
    /** Answers as a protocol 1.23 controller with two cards, two channels and two modes, on direct settings. */
    ScriptedChannel();

    int sendCommand(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameter(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterInt(int* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterDouble(double* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterBool(bool* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int setParameter(const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

    /** Changes answers: "command=answer" each, "command=!" for a command that fails; separated by semicolons. */
    void script(const QByteArray& changes);

    QByteArrayList takeCommands();
    QByteArrayList takeReports();

    QMap<QByteArray, QByteArray> answers;
    QByteArrayList commands;
    QByteArrayList reports;

private:
    bool ask(const char* operation, const char* format, va_list arguments, QByteArray* answer)
        Q_ATTRIBUTE_FORMAT_PRINTF(3, 0);
};
