#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "Workbench.h"

#include <QApplication>
#include <QScreen>

namespace {

constexpr int margin = 40; // pixels
constexpr int besideDialog = 480;
constexpr int aboveMain = 220;

} // namespace

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
    // Side by side, with room for the dialog, which opens over the main window.
    const QPoint corner = QGuiApplication::primaryScreen()->availableGeometry().topLeft() + QPoint(margin, margin);
    workbench.move(corner + QPoint(besideDialog, 0));
    workbench.show();
    host.window.move(corner + QPoint(0, aboveMain));
    host.window.show();
    return QApplication::exec();
}
