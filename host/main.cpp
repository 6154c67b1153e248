#include "Console.h"
#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "MainWindow.h"
#include "Workbench.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, connected to a simulated controller.");
    if (!options.parse(argc, argv))
        return options.status();

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    // Rounding 1.5 up to 2 would push the dialog's buttons off the screen.
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    int nameOnly = 1; // Qt must not see the arguments: it has an option --plugin of its own.
    const QApplication application(nameOnly, argv);
    DevelopmentHost host(options.setup());
    MainWindow window(&host);
    Workbench workbench(&host);
    QObject::connect(&window, &MainWindow::workbenchWanted, &workbench, &Workbench::bringToFront);
    QObject::connect(&host.replay(), &Replay::differed, &fail);
    QObject::connect(&host.recorder(), &Recorder::ended, [](const QString& reason) {
        if (!reason.isEmpty())
            fail(reason);
    });
    const QString problem = host.start(&window);
    if (!problem.isEmpty())
        return fail(problem);
    workbench.show();
    window.show();
    return QApplication::exec();
}
