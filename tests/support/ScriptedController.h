#pragma once

#include "SimulatedController.h"

#include <functional>
#include <utility>

/** Returns the controller \a name, a name or a file. Ends the program if it cannot be read. */
ControllerTable tableOf(const QString& name);

/**
 * The controller of most tests: tests/data/standard-controller.txt, changed by the lines of a case. It can fail
 * commands by their number, and keeps each command after its operation ("get synccard available"). LoadedModule adds
 * the commands that the channel logs as failed, and each report.
 */
class ScriptedController : public SimulatedController
{
public:
    ScriptedController() : SimulatedController(tableOf(DATA_DIR "/standard-controller.txt")) {}

    /** Changes the table by lines of a controller file. Returns an error message, or an empty string on success. */
    QString script(const QByteArrayList& lines);

    /** Forgets commands and reports. Fails the commands from \a first to the one before \a end, counted from 0. */
    void restart(const ControllerTable& table, int first = 0, int end = 0);

    /** Returns the commands since the last call. */
    QByteArrayList takeCommands() { return std::exchange(commands, {}); }

    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    /** Called with the text of each command, report and message box, at the time when an event loop might run. */
    std::function<void(const QByteArray& text)> during = [](const QByteArray&) {};

    /** Answers in place of the table, if it is set. */
    std::function<bool(Operation operation, const QByteArray& command, QByteArray* answer)> answering;

    QByteArrayList commands; // in the order in which they were executed
    QVector<int> failed;     // positions in commands
    QByteArrayList reports;

private:
    int firstFailing = 0;
    int endOfFailing = 0;
};
