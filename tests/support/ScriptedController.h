#pragma once

#include "SimulatedController.h"

#include <QSet>

#include <functional>

class ControllerChannel;

/**
 * The controller of most tests: tests/data/standard-controller.txt, changed by the lines of a case. It can fail
 * commands by their number, and keeps each command behind its operation ("get synccard available"), and each report of
 * the channel above it.
 */
class ScriptedController : public SimulatedController
{
public:
    ScriptedController();

    /**
     * Changes the table by a line of a controller file, with "maybe " in front of one that may stay unasked. Returns
     * what is wrong with the line, or an empty string.
     */
    QString script(const QByteArray& line, int number = 0);

    /** Forgets what was asked and reported. Fails the commands from \a first to the one before \a end, from 0. */
    void restart(const ControllerTable& table, int first = 0, int end = 0);

    /** Keeps what \a channel logs and what is reported to it. */
    void listen(const ControllerChannel& channel);

    /** Returns the commands since the last call. Fails the test if the channel logged others. */
    QByteArrayList takeCommands();

    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    /** Called in each command, report and message box with its text, as what runs an event loop would. */
    std::function<void(const QByteArray& text)> during = [](const QByteArray&) {};

    QByteArrayList commands; // in the order in which they were executed
    QVector<int> failed;     // positions in commands
    QSet<int> askedLines;    // lines whose answers were asked for
    QByteArrayList reports;

private:
    QByteArrayList logged;
    int firstFailing = 0;
    int endOfFailing = 0;
};
