#include "Tour.h"

#include "DialogText.h"
#include "StateDifference.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>

#include <cmath>
#include <cstdio>

namespace {

constexpr int boxPollMilliseconds = 5;
constexpr int pollDeadlineMilliseconds = 20000; // its two commands may be slow

void print(const QString& line)
{
    static_cast<void>(std::fputs(qPrintable(line + '\n'), stdout));
}

void printCommand(const CommandRecord& record)
{
    const QString outcome = record.result == 0 ? QString::fromLatin1(record.answer) : QString("failed");
    print(QString("%1 %2 -> %3 (%4)")
              .arg(QString::fromLatin1(record.operation).leftJustified(6), QString::fromLatin1(record.command), outcome)
              .arg(record.result));
}

/** What OK leaves of a card's direct settings: two decimals of the frequency, whole microseconds of the delays. */
void roundAsShown(CardState* card)
{
    if (card->source == "internal")
        card->frequency = std::round(card->frequency * 100.0) / 100.0;
    for (ChannelState& channel : card->channels)
        channel.delay = std::round(channel.delay * 1000.0) / 1000.0;
}

} // namespace

Tour::Tour(const HostSetup& setup, const QString& pictureFolder)
    : initial(setup.state), expected(setup.state), pictureFolder(pictureFolder), host(setup)
{
    QObject::connect(&host.channel, &ControllerChannel::executed, printCommand);
    QObject::connect(&host.channel, &ControllerChannel::reported,
                     [](const QString&, const QString&, int, const QString& message) { print("report: " + message); });
    QObject::connect(&boxPoller, &QTimer::timeout, &boxPoller, [this] { closeBox(); });
    boxPoller.start(boxPollMilliseconds);
    QObject::connect(&host.replay, &Replay::differed, &boxPoller,
                     [this](const QString& problem) { demand(false, problem); });
}

bool Tour::start()
{
    if (!host.start()) {
        firstProblem = host.errorString();
        return false;
    }
    if (host.isReplaying())
        initial = host.replay.recordedController(initial);
    host.window.show();
    meetDialog();
    return true;
}

bool Tour::run()
{
    using Visit = void (Tour::*)();
    for (const Visit next :
         {&Tour::raiseFrequency, &Tour::takeSourceBack, &Tour::editChannels, &Tour::choosePredefinedMode,
          &Tour::meetLegacyController, &Tour::meetLockedController, &Tour::meetControllerWithoutSynccard}) {
        if (!hasFailed())
            (this->*next)();
    }
    if (host.isReplaying())
        demand(host.replay.isAtEnd(), "the recording goes on after the tour's end");
    return !hasFailed();
}

void Tour::raiseFrequency()
{
    visit("Raise the internal frequency, OK", [this] {
        demand(!initial.cards.isEmpty(), "the tour needs a controller with a synccard");
        demand(!initial.locked, "the tour needs a controller that is not locked");
        const auto* frequency = user->find<QWidget>("doubleSpinBox_frequency");
        demand(frequency->isVisible() && frequency->isEnabled(),
               "the tour needs a controller on direct settings with the internal source");
        if (hasFailed())
            return;
        waitForPoll();
        look("direct-settings");
        user->focus(Qt::Key_F);
        user->press("doubleSpinBox_frequency", Qt::Key_Up);
        if (hasFailed())
            return;
        CardState& card = expected.cards.first();
        roundAsShown(&card);
        card.frequency = qMin(card.frequency + 1.0, card.maxFrequency);
        expected.activeMode = "none";
        user->leave("OK");
    });
}

void Tour::takeSourceBack()
{
    visit("Change the source, Cancel", [this] {
        const auto* sources = user->find<QComboBox>("comboBox_source");
        user->focus(Qt::Key_C);
        user->press("comboBox_source", Qt::Key_Down);
        look("external-source");
        // The source comes back; what its change took along, divisor and output, does not.
        CardState& card = expected.cards.first();
        const SourceState* visited = card.findSource(sources->currentData().toString());
        demand(visited && visited->keyword != card.source, "the controller offers no second source");
        if (hasFailed())
            return;
        card.divisor = qMin(card.divisor, visited->maxDivisor);
        if (!visited->outputs.contains(card.output))
            card.output = "none";
        user->leave("Cancel");
    });
}

void Tour::editChannels()
{
    visit("Edit a delay and an idle flag, OK", [this] {
        CardState& card = expected.cards.first();
        demand(!card.channels.isEmpty(), "the controller has no channels");
        QDoubleSpinBox* editor = hasFailed() ? nullptr : user->editDelay(0);
        demand(editor, "the delay editor does not open");
        if (!editor || hasFailed())
            return;
        look("delay-editor");
        const int delay = qMin(1234, static_cast<int>(editor->maximum()));
        DialogUser::type(editor, QString::number(delay), Qt::Key_Return);
        const int last = card.channels.size() - 1;
        const bool isIdleFixed = initial.cards.last().model == "0x0301";
        user->clickCell(last, 2);
        roundAsShown(&card);
        card.channels.first().delay = delay / 1000.0;
        if (!isIdleFixed)
            card.channels.last().activeDuringIdle = !card.channels.last().activeDuringIdle;
        look("channels");
        user->leave("OK");
    });
}

void Tour::choosePredefinedMode()
{
    visit("Choose a predefined mode, OK", [this] {
        demand(!initial.modes.isEmpty(), "the controller has no predefined modes");
        if (hasFailed())
            return;
        user->focus(Qt::Key_S);
        demand(user->choose("comboBox_modes", initial.modes.first().id), "the mode cannot be chosen");
        look("predefined-mode");
        expected.activeMode = initial.modes.first().id;
        user->leave("OK");
    });
}

void Tour::meetLegacyController()
{
    ControllerState legacy = initial;
    legacy.protocol = VersionInfo(0, 12, 7);
    legacy.activeMode = legacy.modes.last().id;
    restart(legacy);
    visit("A legacy controller: choose a mode, OK", [this] {
        look("legacy");
        demand(user->choose("comboBox_modes", initial.modes.first().id), "the mode cannot be chosen");
        expected.activeMode = initial.modes.first().id;
        user->leave("OK");
    });
}

void Tour::meetLockedController()
{
    ControllerState locked = initial;
    locked.locked = true;
    restart(locked);
    visit("A locked controller: look, Escape", [this] {
        waitForPoll();
        look("locked");
        user->press("comboBox_modes", Qt::Key_Up);
        demand(!user->find<QAbstractButton>("pushButton_Ok")->isEnabled(), "OK is enabled");
        user->leave("Escape");
    });
}

void Tour::meetControllerWithoutSynccard()
{
    ControllerState bare = initial;
    bare.cards.clear();
    restart(bare);
    visit("A controller without synccard: look, close", [this] {
        look("no-synccard");
        demand(!user->find<QLabel>("label_error")->isHidden(), "the notice is missing");
        user->leave("close");
    });
}

/** Ends the module and starts it before another controller. */
void Tour::restart(const ControllerState& state)
{
    if (hasFailed())
        return;
    expected = state;
    const bool isStarted = host.restart(state);
    demand(isStarted, host.errorString());
    if (isStarted)
        meetDialog();
}

void Tour::meetDialog()
{
    user =
        std::make_unique<DialogUser>(qobject_cast<QDialog*>(host.loader.module()->get_gui_elements().first()->content));
}

/** Opens the dialog by its shortcut, lets \a steps leave it, and looks at what the controller has become. */
void Tour::visit(const QString& title, const DialogUser::Steps& steps)
{
    if (hasFailed())
        return;
    print("\n" + title);
    host.window.activateWindow();
    demand(QTest::qWaitFor([this] { return host.window.isActiveWindow(); }),
           "the host's window does not become active");
    const auto outcome = user->openBy([this] { QTest::keyClick(&host.window, Qt::Key_F7, Qt::ShiftModifier); }, steps);
    demand(outcome != DialogUser::NotShown, title + ": the dialog was not shown");
    demand(outcome != DialogUser::LeftOpen, title + ": the dialog did not close");
    // A recording knows what was asked, not what the controller has become.
    const QString difference =
        host.isReplaying() ? QString() : firstDifference(expected.toJson(), host.controller.state().toJson());
    demand(difference.isEmpty(), title + ": " + difference);
}

void Tour::waitForPoll()
{
    const auto* input = user->find<QLabel>("label_inputSource");
    demand(initial.input.isEmpty()
               || QTest::qWaitFor([input] { return !input->text().isEmpty(); }, pollDeadlineMilliseconds),
           "the sync input is not polled");
}

/** The tour does nothing that should fail: it ends with the first warning. */
void Tour::closeBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    demand(false, "the dialog warns: " + box->text());
    box->accept();
}

/** Prints what the dialog shows, and takes its picture. */
void Tour::look(const QString& name)
{
    const QStringList lines = textOfDialog(user->dialog());
    for (const QString& line : lines) {
        if (!line.endsWith(" hidden"))
            print("  " + line);
    }
    takePicture(user->dialog(), name);
}

void Tour::takePicture(QWidget* widget, const QString& name)
{
    if (pictureFolder.isEmpty() || hasFailed())
        return;
    // A layout of fixed size follows what was shown or hidden one turn of the event loop later.
    QTest::qWait(1);
    const QString file = QDir(pictureFolder).filePath(name + ".png");
    demand(widget->grab().save(file), file + ": cannot be written");
}

void Tour::demand(bool condition, const QString& what)
{
    if (!condition && !hasFailed())
        firstProblem = what;
}
