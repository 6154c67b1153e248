#include "SynccardDialog.h"

#include <QHideEvent>
#include <QPointer>

// A channel may run an event loop in a command or in a report, so that input and timers arrive while the dialog works:
// - An opening, a poll, a new source or an exit begins a step, unless another step is under way or something waits.
// - A step ends after its last command: that of an opening before exec(), that of an exit when the dialog is closed.
// - During an opened dialog's poll or new source, another new source waits for its end, and the first exit for both.
// - Cancel drops a source that waits. Hiding the dialog, or the end of exec(), drops everything that waits.
// Any other request is dropped at once.

/** Refuses an opening during another step, while something waits, and until the exec() of an earlier one returns. */
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

/** The host may call exec(), too. The dialog may be gone when QDialog::exec() returns. */
int SynccardDialog::exec()
{
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

/** Begins the writing of a new source, or lets the source wait. */
bool SynccardDialog::beginSource()
{
    bSourceWaits = !beginStep();
    return !bSourceWaits;
}

/** Begins an exit. During another step the first exit waits, if the dialog was opened by update_and_exec(). */
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
 * Ends any step except an exit. What waits is carried out from the event loop, because an exit may end in the deletion
 * of the dialog, and with it of the widget or timer whose signal began this step.
 */
void SynccardDialog::endStep()
{
    bBusy = false;
    if (bSourceWaits || waitingExit)
        waitTimer.start();
}

/** Closes the dialog at the end of an exit, unless the host has hidden it meanwhile. done() may delete the dialog. */
void SynccardDialog::endExit(DialogCode exit)
{
    const QPointer<SynccardDialog> self(this);
    if (isVisible())
        done(exit);
    if (self)
        bBusy = false;
}

/**
 * Writes the source that is shown now, unless Cancel waits. An exit that waits follows: at once if no source was
 * written, else when this function is called again.
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

/** A host may hide the dialog in any way, at any time. A minimized dialog goes on. */
void SynccardDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous())
        stopInput();
}

/** Stops the polls, lets no widget mark a change or write a source, and drops what waits. */
void SynccardDialog::stopInput()
{
    timer->stop();
    waitTimer.stop();
    bUserAction = false;
    bSourceWaits = false;
    waitingExit.reset();
}
