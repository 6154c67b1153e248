#pragma once

#include "HostSetup.h"

#include <QCommandLineParser>

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
     * display. Returns false when the program must end with status(): 0 after --help, --version or --list, which it
     * has printed then, and 2 after a mistake, of which it has told.
     */
    bool parse(int argc, char* argv[]);
    int status() const { return itsStatus; }

    QString value(const QString& option) const { return parser.value(option); }

    /** What the arguments ask for; by default the built-in controller and the plug-in beside the program. */
    const HostSetup& setup() const { return host; }

private:
    bool refuse(const QString& message);
    bool listControllers();
    bool readLanguage();
    bool readController();
    bool readProtocol();
    bool readFaults();
    bool checkTexts();
    bool checkReplay();

    QCommandLineParser parser;
    ReplayedController replayed;
    HostSetup host;
    int itsStatus = 0;
};
