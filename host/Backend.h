#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "Faults.h"
#include "HostSetup.h"
#include "Recorder.h"
#include "Replay.h"
#include "SimulatedController.h"

/**
 * The host's side towards the controller: the state in force, and the channel and the versions that modules get.
 * Commands go from the channel through recorder and faults to the simulated controller, or to the recording that
 * replaces it.
 */
class Backend
{
public:
    explicit Backend(const HostSetup& setup);

    /** Opens the recordings and connects to the controller. Returns why it cannot, or an empty text. */
    QString start();

    /** Connects to a controller of this \a state: sets the versions, and tells the links. */
    void connectTo(const ControllerState& state);
    /** Puts \a state in force; connects again only if protocol or model differ. */
    void setState(const ControllerState& state);

    /** Goes back to the beginning of the recording that answers, and connects anew. */
    void rewind();

    bool isReplaying() const { return !setup.replay.isEmpty(); }

    ControllerChannel& channel() { return commandChannel; }
    BackendVersions& versions() { return backendVersions; }
    Faults& faults() { return faultLayer; }
    const SimulatedController& controller() const { return simulated; }
    const Replay& replay() const { return recorded; }
    Recorder& recorder() { return commandRecorder; }

private:
    HostSetup setup;
    SimulatedController simulated;
    Replay recorded;
    Faults faultLayer;
    Recorder commandRecorder;
    ControllerChannel commandChannel;
    BackendVersions backendVersions;
};
