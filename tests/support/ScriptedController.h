#pragma once

#include "SimulatedController.h"

#include <functional>
#include <utility>

/** Reads the controller \a name, a name or a file; ends the program when it cannot be read. */
ControllerTable tableOf(const QString& name);

/**
 * The controller of most tests: tests/data/standard-controller.txt, changed by the lines of a case. It can fail
 * commands by their number, and keeps each command behind its operation ("get synccard available"). LoadedModule adds
 * what the channel above it logs as failed, and each report.
 */
class ScriptedController : public SimulatedController
{
public:
    ScriptedController() : SimulatedController(tableOf(DATA_DIR "/standard-controller.txt")) {}

    /** Changes the table by lines of a controller file. Returns an error message, or an empty string on success. */
    QString script(const QByteArrayList& lines);

    /** Forgets what was asked and reported. Fails the commands from \a first to the one before \a end, from 0. */
    void restart(const ControllerTable& table, int first = 0, int end = 0);

    /** Returns the commands since the last call. */
    QByteArrayList takeCommands() { return std::exchange(commands, {}); }

    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    /** Called in each command, report and message box with its text, as what runs an event loop would. */
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
