#pragma once

#include "IOManager.h"

#include <QByteArray>
#include <QObject>

#include <cstdarg>

class SimulatedController;

/** One command as it went over the channel. */
struct CommandRecord
{
    QByteArray operation; // the channel's operation, such as "getParameter"
    QByteArray command;   // the text as the module formatted it
    QByteArray answer;    // the value or reply line; empty for a set or a failure
    int result;           // 0 on success
};

/**
 * The command channel between a module and the simulated controller. Formats and parses numbers with a decimal point
 * whatever the user's locale, and refuses an answer that does not fit the module's buffer. GUI thread only; does not
 * own the controller.
 */
class ControllerChannel : public QObject, public IOManager
{
    Q_OBJECT

public:
    explicit ControllerChannel(SimulatedController* controller) : controller(controller) {}

    int sendCommand(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameter(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterInt(int* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterDouble(double* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterBool(bool* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int setParameter(const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

signals:
    /** A command has been answered. */
    void executed(const CommandRecord& record);
    /** The module reported an error; \a message as a finished text. */
    void reported(const QString& category, const QString& systemTag, int flag, const QString& message);

private:
    bool getValue(const QByteArray& command, QByteArray* value);
    int answerText(const char* operation, const QByteArray& command, bool taken, const QByteArray& text, char* answer);
    int finish(const char* operation, const QByteArray& command, bool ok, const QByteArray& answer);

    SimulatedController* controller;
};
