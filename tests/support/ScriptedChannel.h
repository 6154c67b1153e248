#pragma once

#include "FormattingChannel.h"

#include <QByteArrayList>
#include <QMap>
#include <QVector>

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

    /** Fails the commands from the \a first one to come to the one before \a end, both counted from 0. */
    void failBetween(int first, int end)
    {
        firstFailing = first;
        endOfFailing = end;
    }

    QByteArrayList takeCommands() { return std::exchange(commands, {}); }
    QByteArrayList takeReports() { return std::exchange(reports, {}); }

    QByteArrayList commands;
    QVector<int> failed; // positions in commands
    QByteArrayList reports;

protected:
    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;
    void finished(const CommandRecord& record) override;

private:
    QMap<QByteArray, QByteArray> answers;
    int firstFailing = 0;
    int endOfFailing = 0;
};
