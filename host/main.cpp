#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "Workbench.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, in front of a simulated controller.");
    if (!options.parse(argc, argv))
        return options.exitStatus();

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    DevelopmentHost host(options.setup());
    Workbench workbench(&host);
    QObject::connect(&host.replay, &Replay::differed, &HostOptions::fail);
    if (!host.start())
        return HostOptions::fail(host.errorString());
    host.window.show();
    workbench.move(host.window.frameGeometry().topRight());
    workbench.show();
    host.window.activateWindow();
    return QApplication::exec();
}
