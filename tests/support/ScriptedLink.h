#pragma once

#include "CommandRecord.h"
#include "ControllerLink.h"
#include "SessionFile.h"

#include <QSet>
#include <QVector>

#include <functional>
#include <utility>

class ControllerChannel;

/**
 * The controller of most tests: answers from a table, takes over what is set, and fails what it is told to fail. It
 * keeps each command behind its operation ("get synccard available"), and each report of the channel above it.
 */
class ScriptedLink : public ControllerLink
{
public:
    struct Answer
    {
        QByteArray text;
        int line; // of the session file that gave it; 0 for a standard answer
    };
    /** By command, "!" for one that fails; a command behind its operation means that operation only. */
    using Answers = QMap<QByteArray, Answer>;

    /** Answers as tests/data/standard-controller.txt says. */
    ScriptedLink();

    /** Changes an answer: "COMMAND=ANSWER", or "maybe COMMAND=ANSWER" for one that may stay unasked. */
    void script(QByteArray change, int line = 0);
    void script(const SessionLines& changes);

    /** Forgets what was asked and reported. Fails the commands from \a first to the one before \a end, from 0. */
    void restart(const Answers& newAnswers, int first = 0, int end = 0);

    /** Keeps what \a channel carries and what is reported to it. */
    void listen(const ControllerChannel& channel);

    QByteArrayList takeCommands() { return std::exchange(commands, {}); }
    QByteArrayList takeReports() { return std::exchange(reports, {}); }

    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    /** Called in each command, report and message box with its text, as what runs an event loop would. */
    std::function<void(const QByteArray& text)> during = [](const QByteArray&) {};

    Answers answers;
    QByteArrayList commands;
    QVector<int> failed;  // positions in commands
    QSet<int> askedLines; // lines whose answers were asked for
    QByteArrayList reports;

private:
    int firstFailing = 0;
    int endOfFailing = 0;
};
