#include "Console.h"
#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "Workbench.h"

#include <QApplication>
#include <QScreen>

// Side by side, with room for the dialog, which opens over the main window; pixels.
static constexpr QPoint workbenchPlace(520, 40);
static constexpr QPoint mainPlace(40, 260);

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, in front of a simulated controller.");
    if (!options.parse(argc, argv))
        return endProgram(options.ending());

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    DevelopmentHost host(options.setup());
    Workbench workbench(&host);
    QObject::connect(&host.replay(), &Replay::differed, &fail);
    if (!host.start())
        return fail(host.errorString());
    const QPoint corner = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    workbench.move(corner + workbenchPlace);
    workbench.show();
    host.window().move(corner + mainPlace);
    host.window().show();
    return QApplication::exec();
}
