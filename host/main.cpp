#include "DevelopmentHost.h"
#include "HostOptions.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, in front of a simulated controller.");
    options.addOption({"protocol", "Lets the controller speak protocol <version>, such as 0.12.7 or 1.23.", "version"});
    options.addOption({"plugin", "Loads the module from <file>.", "file"});
    if (!options.parse(argc, argv))
        return options.exitStatus();

    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    const QString plugin = options.value("plugin");
    DevelopmentHost host(options.controllerState(), plugin.isEmpty() ? ModuleLoader::defaultFile() : plugin);
    if (!host.start())
        return HostOptions::fail(host.errorString());
    host.window.show();
    return QApplication::exec();
}
