#include "DevelopmentHost.h"
#include "HostOptions.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, in front of a simulated controller.");
    if (!options.parse(argc, argv))
        return options.exitStatus();

    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    DevelopmentHost host(options.controllerState(), options.pluginFile());
    if (!host.start())
        return HostOptions::fail(host.errorString());
    host.window.show();
    return QApplication::exec();
}
