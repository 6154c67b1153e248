#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "Faults.h"
#include "HostSetup.h"
#include "MainWindow.h"
#include "ModuleLoader.h"
#include "Recorder.h"
#include "Replay.h"
#include "SimulatedController.h"

/**
 * A controller, the channel to it, the main window and the module in its menu. Commands go from the channel through
 * recorder and faults to the simulated controller, or to the recording that replaces it. Needs a QApplication.
 */
class DevelopmentHost
{
public:
    explicit DevelopmentHost(const HostSetup& setup);

    /** Opens recordings, loads the module and places its entry. False when one fails; errorString() says why. */
    bool start();
    QString errorString() const { return error; }

    /** Ends the module and starts it anew before a controller of this state. False like start(). */
    bool restart(const ControllerState& state);

    /**
     * Puts a state in force while the module stays loaded, or is loaded anew if the protocol crosses 0.13: a dialog
     * shows what it began as for good. Returns why not, or an empty text.
     */
    QString changeState(const ControllerState& state);

    bool isReplaying() const { return !setup.replay.isEmpty(); }

private:
    HostSetup setup;
    QString error;

public:
    SimulatedController controller;
    Replay replay;
    Faults faults;
    Recorder recorder;
    ControllerChannel channel;
    BackendVersions versions;
    MainWindow window;
    ModuleLoader loader; // last: the module ends before what it was handed

private:
    bool openRecordings();
    bool loadPlugin();
    void placeModule();
    void connectTo(const ControllerState& state);
};
