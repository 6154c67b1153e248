#pragma once

#include "HostSetup.h"

#include <QCommandLineParser>

/** Parses the command line of the host's programs. A program may add options. --help describes all of them. */
class HostOptions
{
public:
    explicit HostOptions(const QString& description);

    /** Adds an option of one program. */
    void addOption(const QCommandLineOption& option) { parser.addOption(option); }

    /**
     * Reads the program's arguments. Call it before the QApplication, which needs a display. Returns false if the
     * program must end with status(): 0 after printing --help, --version or --list, 2 after printing an error message.
     */
    bool parse(int argc, char** argv);
    int status() const { return itsStatus; }

    QString value(const QString& option) const { return parser.value(option); }

    /** Returns the chosen setup, by default the built-in controller and the plug-in next to the program. */
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
    HostSetup host;
    int itsStatus = 0;
};
