#include "Backend.h"

static BackendVersions versionsOf(const ControllerIdentity& controller)
{
    return {{1, 0, 0}, controller.protocol, {1, 0, 0}, controller.model};
}

Backend::Backend(const HostSetup& setup)
    : setup(setup), simulated(setup.state), recorded(setup.replay),
      faultLayer(isReplaying() ? static_cast<ControllerLink*>(&recorded) : &simulated), commandRecorder(&faultLayer),
      commandChannel(&commandRecorder), backendVersions(versionsOf(setup.state.identity()))
{
    faultLayer.failMatching(setup.failing);
    faultLayer.setLatency(setup.latency);
}

QString Backend::start()
{
    ControllerState state = setup.state;
    if (isReplaying()) {
        if (!recorded.open())
            return recorded.problem();
        state.protocol = recorded.recordedController().protocol;
        state.model = recorded.recordedController().model;
    }
    if (!setup.record.isEmpty() && !commandRecorder.start(setup.record))
        return commandRecorder.problem();
    connectTo(state);
    return {};
}

void Backend::connectTo(const ControllerState& state)
{
    backendVersions = versionsOf(state.identity());
    simulated.setState(state);
    commandRecorder.connected(state.identity());
}

void Backend::setState(const ControllerState& state)
{
    if (backendVersions.protocol() == state.protocol && backendVersions.hubModel() == state.model)
        simulated.setState(state);
    else
        connectTo(state);
}

void Backend::rewind()
{
    recorded.rewind();
    connectTo(simulated.state());
}
