#include "StepCounter.h"

#include "DevelopmentHost.h"

#include <QApplication>

static constexpr int boxPollMilliseconds = 50;

StepCounter::StepCounter(DevelopmentHost* host, QObject* parent) : QObject(parent), host(host)
{
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &StepCounter::endPause);
    connect(&host->channel(), &ControllerChannel::executed, this, &StepCounter::add);
}

void StepCounter::add(const CommandRecord& record)
{
    if (dialog != host->dialog()) { // The host makes a new one when it starts the module again.
        dialog = host->dialog();
        connect(dialog, &QDialog::finished, this,
                [this](int result) { end(result == QDialog::Accepted ? tr("OK") : tr("Cancel")); });
    }
    if (traitsOf(record.text()).isPolled)
        return;
    const bool isAfterPause = commands == 0 || hasWaited;
    microseconds =
        (commands == 0 ? 0 : microseconds) + (isAfterPause ? record.microseconds : sinceLast.nsecsElapsed() / 1000);
    hasWaited = false;
    sinceLast.start();
    ++commands;
    isOpening = !dialog->isVisible();
    pause.start(0);
}

/** The event loop runs, which ends an opening or a new source, unless it runs in a command or a message box. */
void StepCounter::endPause()
{
    if (!dialog || host->channel().isBusy())
        return;
    if (dialog->isVisible() && QApplication::activeModalWidget() != dialog) {
        hasWaited = true; // somebody reads a message box, which is no time of the step
        return pause.start(boxPollMilliseconds);
    }
    if (isOpening)
        end(dialog->isVisible() ? tr("Opening") : tr("Opening without a dialog"));
    commands = 0;
}

void StepCounter::end(const QString& step)
{
    const QString number = commands == 1 ? tr("1 command") : tr("%1 commands").arg(commands);
    const double milliseconds = commands == 0 ? 0.0 : static_cast<double>(microseconds) / 1000.0;
    emit counted(tr("%1: %2, %3 ms").arg(step, number, QString::number(milliseconds, 'f', 1)));
    commands = 0;
    pause.stop();
}
