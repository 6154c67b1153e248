#pragma once

#include "ControllerState.h"

#include <QRegularExpression>

/** What a host program is told to be. */
struct HostSetup
{
    ControllerState state = ControllerState::builtIn();
    QString pluginFile;         // if empty, the one beside the program
    QString record;             // file to write, if any
    QString replay;             // file to answer from instead of the simulated controller, if any
    QRegularExpression failing; // commands that fail
    int latency = 0;            // milliseconds
};
