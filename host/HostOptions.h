#pragma once

#include "HostSetup.h"

#include <QCommandLineParser>

/**
 * The command line of the host's programs, --help tells it, and what a program adds. Errors are one line on standard
 * error.
 */
class HostOptions
{
public:
    explicit HostOptions(const QString& description);

    /** Adds an option of one program. */
    void addOption(const QCommandLineOption& option) { parser.addOption(option); }

    /**
     * Reads the program's arguments, before there is a QApplication: that would take --plugin for its own and needs a
     * display. False when the program shall end with exitStatus(): 0 after --help, --version and --list, 2 after a
     * mistake.
     */
    bool parse(int argc, char* argv[]);
    int exitStatus() const { return status; }

    QString value(const QString& option) const { return parser.value(option); }

    /** What the arguments say; without them the built-in controller and the plug-in beside the program. */
    const HostSetup& setup() const { return host; }

    /** Where the controllers that have a name lie, a file NAME.json each. Needs a QCoreApplication. */
    static QString controllerFolder();

    /** Says \a message on standard error and returns the exit status 2. */
    static int fail(const QString& message);

private:
    bool end(int exitStatus);
    static int listControllers();
    bool readController();
    bool readProtocol();
    bool readFaults();
    bool checkRecordings();

    QCommandLineParser parser;
    HostSetup host;
    int status = 0;
};
