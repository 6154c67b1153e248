#pragma once

#include "HostSetup.h"

#include <QCommandLineParser>

/** How a program ends right after its command line was read. */
struct Ending
{
    QString text;
    int status = 0;
};

/** Prints the ending's text, on standard error unless the status is 0, and returns the status. */
int endProgram(const Ending& ending);

/** Parses the command line of the host's programs, to which a program may add options. --help describes them. */
class HostOptions
{
public:
    /** What a program does with --controller beside --replay. */
    enum ReplayedController { Ignored, Compared };

    explicit HostOptions(const QString& description, ReplayedController replayed = Ignored);

    /** Adds an option of one program. */
    void addOption(const QCommandLineOption& option) { parser.addOption(option); }

    /**
     * Reads the program's arguments, before there is a QApplication: QApplication takes --plugin for itself and needs a
     * display. Returns false when the program must end with ending(): after --help, --version or --list, and with
     * status 2 after a mistake.
     */
    bool parse(int argc, char* argv[]);
    const Ending& ending() const { return itsEnding; }

    QString value(const QString& option) const { return parser.value(option); }

    /** What the arguments ask for; by default the built-in controller and the plug-in beside the program. */
    const HostSetup& setup() const { return host; }

private:
    bool endWith(const QString& text, int status);
    bool refuse(const QString& message) { return endWith(message, 2); }
    bool listControllers();
    bool readLanguage();
    bool readController();
    bool readProtocol();
    bool readFaults();
    bool checkFiles();
    bool checkReplay();

    QCommandLineParser parser;
    ReplayedController replayed;
    HostSetup host;
    Ending itsEnding;
};
