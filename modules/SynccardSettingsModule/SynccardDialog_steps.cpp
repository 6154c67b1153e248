#include "SynccardDialog.h"

#include <QHideEvent>
#include <QPointer>

// A channel may run an event loop in a command or in a report, so that input and timers arrive while the dialog works:
// - The steps are: an opening, a poll, writing a new source, and closing the dialog.
// - A step starts only if no other step is under way and no request waits.
// - A step ends after its last command. An opening ends before exec(). Closing ends when the dialog is closed.
// - While the open dialog polls or writes a source, a new source waits for the end of the step.
// - The first request to close waits for the step and for a source that waits.
// - Cancel drops a source that waits. Hiding the dialog, or the end of exec(), drops every request that waits.
// Any other request is dropped at once.

/** Starts an opening. Returns false during another step, while a request waits, and during an earlier exec(). */
bool SynccardDialog::beginOpening()
{
    if (bExecuting || !beginStep())
        return false;
    hide();
    return true;
}

/** Ends the opening and runs the dialog modally. */
int SynccardDialog::run()
{
    hide(); // exec() is not modal if the host has shown the dialog, which it may have done during the reads
    setWindowState(windowState() & ~Qt::WindowMinimized); // a minimized dialog would be modal, but out of sight
    endStep();
    bUserAction = bSynccardAvailable;
    if (bSynccardAvailable)
        timer->start();
    return exec();
}

/**
 * Runs the dialog modally. The host may also call it, but not during an earlier exec(), which it leaves as it is. The
 * dialog may be deleted when QDialog::exec() returns.
 */
int SynccardDialog::exec()
{
    if (bExecuting)
        return -1;
    bExecuting = true;
    const QPointer<SynccardDialog> self(this);
    const int result = QDialog::exec();
    if (self) {
        bExecuting = false;
        stopInput();
    }
    return result;
}

bool SynccardDialog::beginStep()
{
    if (bBusy || waitTimer.isActive())
        return false;
    bBusy = true;
    return true;
}

/** Starts writing a new source. During another step, lets the source wait and returns false. */
bool SynccardDialog::beginSource()
{
    bSourceWaits = !beginStep();
    return !bSourceWaits;
}

/**
 * Starts closing the dialog. Returns false during another step. The first request to close waits then, if
 * update_and_exec() has opened the dialog.
 */
bool SynccardDialog::beginExit(DialogCode exit)
{
    if (beginStep()) {
        stopInput();
        return true;
    }
    if (bUserAction && !waitingExit)
        waitingExit = exit;
    return false;
}

/**
 * Ends any step except closing. Carries out the requests that wait from the event loop: closing may delete the dialog,
 * including the widget or timer whose signal started this step.
 */
void SynccardDialog::endStep()
{
    bBusy = false;
    if (bSourceWaits || waitingExit)
        waitTimer.start();
}

/** Closes the dialog, unless the host has hidden it meanwhile, and ends the step. done() may delete the dialog. */
void SynccardDialog::endExit(DialogCode exit)
{
    const QPointer<SynccardDialog> self(this);
    if (isVisible())
        done(exit);
    if (self)
        bBusy = false;
}

/**
 * If a source waits and Cancel does not, writes the source that is shown now. If no source was written, carries out a
 * request to close. Otherwise the next call does so.
 */
void SynccardDialog::carryOutWaiting()
{
    const bool isSourceWritten = bSourceWaits && waitingExit != Rejected;
    bSourceWaits = false;
    if (isSourceWritten)
        on_comboBox_source_currentIndexChanged(comboBox_source->currentIndex());
    if (waitTimer.isActive() || !waitingExit)
        return;
    if (*waitingExit == Accepted)
        accept();
    else
        reject();
}

/** Stops input, however and whenever the host hides the dialog. A minimized dialog continues. */
void SynccardDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous())
        stopInput();
}

/** Stops the polls, drops every request that waits, and keeps widgets from marking a change or writing a source. */
void SynccardDialog::stopInput()
{
    timer->stop();
    waitTimer.stop();
    bUserAction = false;
    bSourceWaits = false;
    waitingExit.reset();
}
