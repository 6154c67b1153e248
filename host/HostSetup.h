#pragma once

#include "NamedController.h"

#include <QLocale>
#include <QRegularExpression>

/** What the command line of a host program asks for. */
struct HostSetup
{
    NamedController controller;
    QString pluginFile;              // empty: the one beside the program
    QLocale language = QLocale::c(); // of the module's texts; English where there is no translation
    QString record;                  // the file to record into; empty: none
    QString replay;                  // the recording that answers in place of the simulated controller; empty: none
    QRegularExpression failing;      // commands in which it is found fail
    int latency = 0;                 // milliseconds that each command takes longer
};
