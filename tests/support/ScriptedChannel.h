#pragma once

#include "FormattingChannel.h"

#include <QByteArrayList>
#include <QMap>

/**
 * The command channel of all tests: answers from a table, records every command behind its operation ("get synccard
 * available"), takes over what is set, and fails what it is told to fail.
 */
class ScriptedChannel : public FormattingChannel
{
public:
    /** Answers as tests/data/standard-controller.txt says. */
    ScriptedChannel();

    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

    /**
     * Changes answers: "command=answer" each, "command=!" for a command that fails, separated by semicolons; a command
     * behind its operation means that operation only.
     */
    void script(const QByteArray& changes);

    QByteArrayList takeCommands() { return std::exchange(commands, {}); }
    QByteArrayList takeReports() { return std::exchange(reports, {}); }

    QByteArrayList commands;
    QByteArrayList reports;

protected:
    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;
    void finished(const CommandRecord& record) override { commands.append(record.operation + ' ' + record.command); }

private:
    QMap<QByteArray, QByteArray> answers;
};
