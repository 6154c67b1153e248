#include "Tour.h"

#include "Console.h"
#include "DialogText.h"
#include "StateTree.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOptionTitleBar>
#include <QTest>

static constexpr int boxPollMilliseconds = 5;
static constexpr int pollDeadlineMilliseconds = 20000; // a poll's two commands may be slow
static constexpr int pictureMargin = 16;               // pixels
static constexpr int workbenchWidth = 1080;            // pixels; its picture cuts off no command

/** \a dialog below a title bar as the style draws it: the window manager's own cannot be grabbed. */
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
    print(QString("%1 %2 -> %3 (%4)")
              .arg(QString::fromLatin1(textOf(record.operation)).leftJustified(6), QString::fromLatin1(record.command),
                   outcome)
              .arg(record.result));
}

Tour::Tour(const HostSetup& setup, const QString& pictureFolder)
    : pictureFolder(pictureFolder), host(setup), workbench(&host)
{
    QObject::connect(&host.channel(), &ControllerChannel::executed, printCommand);
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
    if (!host.start())
        return fail(host.errorString());
    expected = initial = host.controller().state(); // with the protocol of a recording
    host.window().show();
    user = std::make_unique<DialogUser>(host.dialog());
    raiseFrequency();
    takeSourceBack();
    editChannels();
    choosePredefinedMode();
    meetLegacyController();
    meetLockedController();
    meetControllerWithoutSynccard();
    if (host.isReplaying())
        demand(host.replay().isAtEnd(), "the recording goes on after the tour's end");
    if (hasFailed())
        fail(firstProblem);
    return hasFailed() ? 1 : 0;
}

/** Ends the module and starts it again with a controller of this \a state. */
void Tour::restart(const ControllerState& state)
{
    if (hasFailed())
        return;
    expected = state;
    if (demand(host.restart(state), host.errorString()))
        user = std::make_unique<DialogUser>(host.dialog());
}

/**
 * Opens the dialog by its shortcut, runs \a steps, which must close it, and compares the controller's state. Leaves the
 * visit out when there is an \a obstacle, a reason to print.
 */
void Tour::visit(const QString& title, const QString& obstacle, const DialogUser::Steps& steps)
{
    if (hasFailed())
        return;
    if (!obstacle.isEmpty())
        return print("\nleft out: " + title + ": " + obstacle);
    print("\n" + title);
    host.window().activateWindow();
    demand(QTest::qWaitFor([this] { return host.window().isActiveWindow(); }),
           "the host's window does not become active");
    const auto outcome =
        user->openBy([this] { QTest::keyClick(&host.window(), Qt::Key_F7, Qt::ShiftModifier); }, steps);
    demand(outcome != DialogUser::NotShown, title + ": the dialog was not shown");
    demand(outcome != DialogUser::LeftOpen, title + ": the dialog did not close");
    // A recording has answers, but no state.
    if (!host.isReplaying())
        compareState(title);
}

/** Compares each field of the controller with the state that the visit \a title expects. */
void Tour::compareState(const QString& title)
{
    const QStringList wanted = toTree(expected).toLines();
    const QStringList found = toTree(host.controller().state()).toLines();
    for (int i = 0; i < wanted.size(); ++i)
        demand(wanted.at(i) == found.value(i), title + ": expected " + wanted.at(i) + ", found " + found.value(i));
}

void Tour::waitForPoll()
{
    const auto* input = user->find<QLabel>("label_inputSource");
    demand(initial.input.isEmpty()
               || QTest::qWaitFor([input] { return !input->text().isEmpty(); }, pollDeadlineMilliseconds),
           "the sync input is not polled");
}

/** Nothing in the tour should fail, so a warning box ends it. */
void Tour::closeBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    demand(false, "the dialog warns: " + box->text());
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
    // A dialog of fixed size takes its new size one turn of the event loop after widgets were shown or hidden.
    QTest::qWait(1);
    savePicture(name, pictureOf(user->dialog()));
}

/** Takes a picture of the dialog with the workbench beside it. */
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
