#include "DevelopmentHost.h"

#include <QApplication>

/** The host's own ":/lock.png", from which the module's dialog takes its lock icon. */
static void registerResources() // Q_INIT_RESOURCE does not work inside a namespace.
{
    Q_INIT_RESOURCE(host);
}

namespace {

bool isLegacy(const ControllerState& state)
{
    return state.protocol < VersionInfo(0, 13, -1);
}

ControllerLink* lowest(const HostSetup& setup, SimulatedController* controller, Replay* replay)
{
    if (setup.replay.isEmpty())
        return controller;
    return replay;
}

} // namespace

DevelopmentHost::DevelopmentHost(const HostSetup& setup)
    : setup(setup), controller(setup.state), replay(setup.replay), faults(lowest(setup, &controller, &replay)),
      recorder(&faults), channel(&recorder), versions({1, 0, 0}, setup.state.protocol, {1, 0, 0}, setup.state.model),
      loader(setup.pluginFile.isEmpty() ? ModuleLoader::defaultFile() : setup.pluginFile)
{
    faults.failMatching(setup.failing);
    faults.setLatency(setup.latency);
    QObject::connect(&window, &MainWindow::measurementSwitched, &window,
                     [this](bool isOn) { loader.setMeasurementRunning(isOn); });
}

bool DevelopmentHost::start()
{
    registerResources();
    // The plug-in first: what cannot begin must not overwrite a recording.
    if (!loadPlugin() || !openRecordings())
        return false;
    connectTo(isReplaying() ? replay.recordedController(setup.state) : setup.state);
    placeModule();
    return true;
}

bool DevelopmentHost::restart(const ControllerState& state)
{
    loader.unload();
    if (!loadPlugin())
        return false;
    connectTo(state);
    placeModule();
    return true;
}

QString DevelopmentHost::changeState(const ControllerState& state)
{
    if (isLegacy(state) == isLegacy(controller.state())) {
        const bool isSame = versions.protocol() == state.protocol && versions.hubModel() == state.model;
        if (isSame)
            controller.setState(state);
        else
            connectTo(state);
        return {};
    }
    if (QApplication::activeModalWidget())
        return "protocol: close the dialog first; across 0.13 the module is loaded anew";
    return restart(state) ? QString() : error;
}

bool DevelopmentHost::openRecordings()
{
    if (isReplaying() && !replay.open())
        error = replay.problem();
    else if (!setup.record.isEmpty() && !recorder.open(setup.record))
        error = recorder.errorString();
    return error.isEmpty();
}

bool DevelopmentHost::loadPlugin()
{
    error = loader.load() ? QString() : loader.errorString();
    return error.isEmpty();
}

void DevelopmentHost::placeModule()
{
    loader.setParameters(&channel, &window, &versions, false);
    loader.placeElements(window.menuBar());
    loader.setMeasurementRunning(window.isMeasurementRunning());
}

void DevelopmentHost::connectTo(const ControllerState& state)
{
    versions = BackendVersions({1, 0, 0}, state.protocol, {1, 0, 0}, state.model);
    controller.setState(state);
    QByteArray nothing;
    recorder.execute("connect", QString(state.protocol.toString() + ' ' + state.model).trimmed().toLatin1(), &nothing);
}
