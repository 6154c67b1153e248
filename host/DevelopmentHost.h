#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "MainWindow.h"
#include "ModuleLoader.h"
#include "SimulatedController.h"

/** A simulated controller, the channel to it, the main window and the module in its menu. Needs a QApplication. */
class DevelopmentHost
{
public:
    DevelopmentHost(const ControllerState& state, const QString& pluginFile);

    /** Loads the module and places its entry. False when the plug-in is refused; errorString() says why. */
    bool start();
    QString errorString() const { return loader.errorString(); }

    SimulatedController controller;
    ControllerChannel channel;
    BackendVersions versions;
    MainWindow window;
    ModuleLoader loader; // last: the module ends before what it was handed
};
