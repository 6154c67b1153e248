#pragma once

#include "NamedController.h"

#include <QLocale>
#include <QRegularExpression>

/** The setup that the command line of a host program asks for. */
struct HostSetup
{
    NamedController controller;
    QString pluginFile;              // empty for the one next to the program
    QLocale language = QLocale::c(); // of the module's texts. Without a translation they are English.
    QString record;                  // the file to record into, or empty
    QString replay;                  // the recording that answers in place of the simulated controller, or empty
    QRegularExpression failing;      // a command fails if this is found in it
    int latency = 0;                 // additional milliseconds per command
};
