#include "Console.h"
#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "Workbench.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

static constexpr int gap = 12;             // pixels between windows, with room for their frames
static constexpr double dialogGrows = 1.2; // it is wider once it is filled

/**
 * Places the main window left, where the dialog opens over its middle, and the workbench beside both. \a bar is the
 * height of a title bar.
 */
static void placeWindows(QWidget& main, const QSize& dialog, QWidget& workbench, int bar)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry().adjusted(gap, bar, -gap, -gap);
    const QSize size = main.sizeHint();
    const int column = qMax(size.width(), qRound(dialog.width() * dialogGrows));
    main.setGeometry(
        QRect(QPoint(), size)
            .translated(screen.left() + (column - size.width()) / 2, screen.center().y() - size.height() / 2));
    const int left = column + gap;
    const QSize rest(screen.width() - left, screen.height());
    workbench.setGeometry(QRect(screen.topLeft() + QPoint(left, 0), workbench.size().boundedTo(rest)));
}

int main(int argc, char* argv[])
{
    HostOptions options("A window with the synccard module's menu entry, in front of a simulated controller.");
    if (!options.parse(argc, argv))
        return options.status();

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    // Rounding 1.5 up to 2 would push the dialog's buttons off the screen.
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    DevelopmentHost host(options.setup());
    Workbench workbench(&host);
    QObject::connect(&host.replay(), &Replay::differed, &fail);
    if (!host.start())
        return fail(host.errorString());
    QObject::connect(&host.recorder(), &Recorder::ended, [](const QString& problem) {
        if (!problem.isEmpty())
            fail(problem);
    });
    placeWindows(host.window(), host.dialog()->sizeHint(), workbench,
                 QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight));
    workbench.show();
    host.window().show();
    return QApplication::exec();
}
