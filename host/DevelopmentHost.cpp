#include "DevelopmentHost.h"

#include <QApplication>

DevelopmentHost::DevelopmentHost(const HostSetup& setup)
    : backend(setup), loader(setup.pluginFile.isEmpty() ? ModuleLoader::defaultFile() : setup.pluginFile)
{
    QObject::connect(&mainWindow, &MainWindow::measurementSwitched, &mainWindow,
                     [this](bool isOn) { loader.setMeasurementRunning(isOn); });
}

bool DevelopmentHost::start()
{
    Q_INIT_RESOURCE(host); // ":/lock.png", from which the module's dialog takes its lock icon
    // The plug-in first: a program that cannot start must not overwrite a recording.
    error = loader.load() ? backend.start() : loader.errorString();
    return placeModule();
}

bool DevelopmentHost::restart(const ControllerState& state)
{
    loader.unload();
    error = loader.load() ? QString() : loader.errorString();
    if (error.isEmpty())
        backend.connectTo(state);
    return placeModule();
}

QString DevelopmentHost::changeState(const ControllerState& state)
{
    const VersionInfo direct(0, 13, -1);
    const bool isOtherPath = (state.protocol < direct) != (versions().protocol() < direct);
    if (isOtherPath && QApplication::activeModalWidget())
        return "protocol: close the dialog first; across 0.13 the module is loaded anew";
    if (isOtherPath)
        return restart(state) ? QString() : error;
    backend.setState(state);
    return {};
}

/** Hands the host's values over and places the entry, unless there is an error already. */
bool DevelopmentHost::placeModule()
{
    if (!error.isEmpty())
        return false;
    loader.setParameters(&backend.channel(), &mainWindow, &backend.versions(), false);
    loader.placeElements(mainWindow.menuBar());
    loader.setMeasurementRunning(mainWindow.isMeasurementRunning());
    return true;
}
