#pragma once

#include "ControllerState.h"

#include <QLocale>
#include <QRegularExpression>
#include <QVector>

/** What the command line of a host program asks for. */
struct HostSetup
{
    QString controllerName = "full"; // the name of a named controller, or of a file
    ControllerState state = ControllerState::builtIn();
    QString pluginFile;              // empty: the one beside the program
    QLocale language = QLocale::c(); // of the module's texts; English where there is no translation
    QString record;                  // the file to record into; empty: none
    QString replay;                  // the recording that answers in place of the simulated controller; empty: none
    QRegularExpression failing;      // commands in which it is found fail
    int latency = 0;                 // milliseconds that each command takes longer
};

/** Reads the controller \a wanted, the name of a named one or a file, into \a setup. Returns why it cannot, or nothing.
 */
QString readController(const QString& wanted, HostSetup* setup);

/** Reads all named controllers, by name, each a file NAME.json. Returns which of them is broken, or nothing. */
QString readNamedControllers(QVector<HostSetup>* controllers);
