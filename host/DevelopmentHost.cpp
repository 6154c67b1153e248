#include "DevelopmentHost.h"

/** The host's own ":/lock.png", from which the module's dialog takes its lock icon. */
static void registerResources() // Q_INIT_RESOURCE does not work inside a namespace.
{
    Q_INIT_RESOURCE(host);
}

DevelopmentHost::DevelopmentHost(const ControllerState& state, const QString& pluginFile)
    : controller(state), channel(&controller),
      versions(VersionInfo(1, 0, 0), state.protocol, VersionInfo(1, 0, 0), state.model), window(state),
      loader(pluginFile)
{
    QObject::connect(&channel, &ControllerChannel::reported, &window, &MainWindow::showReport);
}

bool DevelopmentHost::start()
{
    registerResources();
    if (!loader.load())
        return false;
    loader.setParameters(&channel, &window, &versions, false);
    loader.placeElements(window.menuBar());
    return true;
}
