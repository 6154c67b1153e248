#include "Tour.h"

#include "Console.h"
#include "ControllerText.h"
#include "DialogText.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOptionTitleBar>
#include <QTest>

static constexpr int boxPollMilliseconds = 5;
static constexpr int pollDeadlineMilliseconds = 20000; // a poll's two commands may be slow
static constexpr int pictureMargin = 16;               // pixels
static constexpr int workbenchWidth = 1080;            // pixels, enough to show each command whole

/** Returns a picture of \a dialog. The style draws the title bar: the window manager's own cannot be grabbed. */
static QPixmap pictureOf(QDialog* dialog)
{
    const QPixmap content = dialog->grab();
    QStyleOptionTitleBar bar;
    bar.initFrom(dialog);
    bar.text = dialog->windowTitle();
    bar.icon = dialog->windowIcon();
    bar.titleBarState = Qt::WindowActive;
    bar.state |= QStyle::State_Active;
    bar.titleBarFlags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    bar.subControls = QStyle::SC_TitleBarLabel | QStyle::SC_TitleBarSysMenu | QStyle::SC_TitleBarCloseButton;
    bar.rect.setHeight(dialog->style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, dialog));
    QPixmap picture(content.width(), bar.rect.height() + content.height());
    picture.fill(bar.palette.color(QPalette::Window));
    QPainter painter(&picture);
    dialog->style()->drawComplexControl(QStyle::CC_TitleBar, &bar, &painter, dialog);
    painter.drawPixmap(0, bar.rect.height(), content);
    return picture;
}

static void printCommand(const CommandRecord& record)
{
    const QString outcome = record.result == 0 ? QString::fromLatin1(record.answer) : QString("failed");
    // This is a single call of arg(), because an answer may contain "%4".
    print(QString("%1 %2 -> %3 (%4)")
              .arg(QString::fromLatin1(textOf(record.operation)).leftJustified(6), QString::fromLatin1(record.command),
                   outcome, QString::number(record.result)));
}

Tour::Tour(const HostSetup& setup, const QString& pictureFolder)
    : initial(setup.controller.table), pictureFolder(pictureFolder), host(setup), window(&host), workbench(&host)
{
    QObject::connect(&host.channel(), &ControllerChannel::executed, &boxPoller, [this](const CommandRecord& record) {
        hasPolled = hasPolled || traitsOf(record.text()).isPolled;
        printCommand(record);
    });
    QObject::connect(&host.channel(), &ControllerChannel::reported,
                     [](const QString&, const QString&, int, const QString& message) { print("report: " + message); });
    QObject::connect(&boxPoller, &QTimer::timeout, &boxPoller, [this] { closeBox(); });
    boxPoller.start(boxPollMilliseconds);
    QObject::connect(&host.replay(), &Replay::differed, &boxPoller,
                     [this](const QString& problem) { demand(false, problem); });
    QObject::connect(&host.recorder(), &Recorder::ended, &boxPoller,
                     [this](const QString& problem) { demand(problem.isEmpty(), problem); });
}

int Tour::run()
{
    NamedController full;
    QString problem = readController("full", &full);
    if (problem.isEmpty())
        problem = host.start(&window);
    if (!problem.isEmpty())
        return fail(problem);
    initial.identity = host.controller().table().identity; // A recording has an identity of its own.
    expected = initial;
    isFull = written(initial) == written(full.table);
    window.show();
    user = std::make_unique<DialogUser>(host.dialog());
    if (isFull) {
        changeSettings();
        meetOtherControllers();
    } else {
        openAndCancel();
    }
    if (host.isReplaying())
        demand(host.replay().isAtEnd(), "the recording goes on after the tour's end");
    if (hasFailed())
        fail(firstProblem);
    return hasFailed() ? 1 : 0;
}

/** Restarts the module with the initial controller changed by \a lines of a controller file. */
void Tour::restart(const QString& lines)
{
    if (hasFailed())
        return;
    expected = initial;
    expect(lines);
    const QString problem = host.restart(expected);
    if (demand(problem.isEmpty(), problem))
        user = std::make_unique<DialogUser>(host.dialog());
}

/**
 * Opens the dialog by its shortcut and runs \a steps, which must close the dialog. On "full" the dialog must be shown,
 * and must change the controller's table exactly by \a change, which is lines of a controller file.
 */
void Tour::visit(const QString& title, const QString& change, const DialogUser::Steps& steps)
{
    if (hasFailed())
        return;
    expect(change);
    print("\n" + title);
    window.activateWindow();
    demand(QTest::qWaitFor([this] { return window.isActiveWindow(); }), "the host's window does not become active");
    const auto outcome = user->openBy([this] { QTest::keyClick(&window, Qt::Key_F7, Qt::ShiftModifier); }, steps);
    demand(!isFull || outcome != DialogUser::NotShown, title + ": the dialog was not shown");
    demand(outcome != DialogUser::LeftOpen, title + ": the dialog did not close");
    // In a replay the controller's table is not used.
    if (isFull && !host.isReplaying())
        compareTable(title);
}

/** Changes the expected table by \a lines of a controller file. */
void Tour::expect(const QString& lines)
{
    const QString problem = changeTable(&expected, lines);
    demand(problem.isEmpty(), problem);
}

/** Compares the controller's table, row by row, with the one that the visit \a title expects. */
void Tour::compareTable(const QString& title)
{
    const QList<QByteArray> wanted = written(expected).split('\n');
    const QList<QByteArray> found = written(host.controller().table()).split('\n');
    for (int i = 0; i < qMax(wanted.size(), found.size()); ++i)
        demand(wanted.value(i) == found.value(i),
               title + ": expected " + wanted.value(i) + ", found " + found.value(i));
}

/** Waits for a poll. The first one comes a second after the dialog was opened. */
void Tour::waitForPoll()
{
    hasPolled = false;
    demand(QTest::qWaitFor([this] { return hasPolled; }, pollDeadlineMilliseconds), "the sync input is not polled");
}

/** Closes a warning box. On "full" a box is a problem, because nothing should fail there. */
void Tour::closeBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    print("box: " + box->text());
    demand(!isFull, "the dialog warns: " + box->text());
    box->accept();
}

/** Prints what the dialog shows, and takes its picture if \a name is not empty. */
void Tour::look(const QString& name)
{
    const QStringList lines = textOfDialog(user->dialog());
    for (const QString& line : lines) {
        if (!line.endsWith(" hidden"))
            print("  " + line);
    }
    // A dialog of fixed size resizes one turn of the event loop after widgets were shown or hidden.
    QTest::qWait(1);
    savePicture(name, pictureOf(user->dialog()));
}

/** Takes a picture of the dialog with the workbench next to it. */
void Tour::lookAtWorkbench()
{
    const QPixmap left = pictureOf(user->dialog());
    workbench.resize(workbenchWidth, left.height());
    const QPixmap right = workbench.grab();
    QPixmap both(left.width() + right.width() + 3 * pictureMargin, left.height() + 2 * pictureMargin);
    both.fill(Qt::darkGray);
    QPainter painter(&both);
    painter.drawPixmap(pictureMargin, pictureMargin, left);
    painter.drawPixmap(left.width() + 2 * pictureMargin, pictureMargin, right);
    savePicture("workbench", both);
}

void Tour::savePicture(const QString& name, const QPixmap& picture)
{
    const QString file = QDir(pictureFolder).filePath(name + ".png");
    if (!pictureFolder.isEmpty() && !name.isEmpty() && !hasFailed())
        demand(picture.save(file), file + ": cannot be written");
}

bool Tour::demand(bool condition, const QString& what)
{
    if (!condition && !hasFailed())
        firstProblem = what;
    return !hasFailed();
}
