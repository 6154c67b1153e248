#pragma once

#include "CommandRecord.h"
#include "IOManager.h"

#include <QObject>

class ControllerLink;

/**
 * The command channel between a module and a controller's link, which it does not own. It formats commands and parses
 * numbers with a decimal point in any locale, and fails an answer that does not fit the module's buffer.
 * A failure fills the result with plausible values: a module that ignores the failure shows wrong values in tests.
 * Lives on the GUI thread.
 */
class ControllerChannel : public QObject, public IOManager
{
    Q_OBJECT

public:
    /** Needs a QCoreApplication. From then on, the whole program writes numbers with a decimal point. */
    explicit ControllerChannel(ControllerLink* link);

    int sendCommand(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameter(char* answer, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterInt(int* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterDouble(double* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int getParameterBool(bool* result, const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    int setParameter(const char* format, ...) override Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

    /** Returns true while a command is under way. The link may run an event loop meanwhile. */
    bool isBusy() const { return commandsUnderWay > 0; }

signals:
    /** Announces a command that has been answered or has failed. */
    void executed(const CommandRecord& record);
    /** Announces an error report of the module. \a message is a finished string. */
    void reported(const QString& category, const QString& systemTag, int flag, const QString& message);

private:
    template <typename Take>
    int carryOut(Operation operation, const QByteArray& command, Take take);
    template <typename Value, typename Convert>
    int answerValue(Operation operation, const QByteArray& command, Value* result, Convert convert);
    int answerText(Operation operation, const QByteArray& command, char* answer);

    ControllerLink* link;
    int commandsUnderWay = 0;
};
