#include "SynccardDialog.h"

#include <QPointer>
#include <QTimer>

// A channel may run an event loop in a command or in a report, so that input and timers arrive in the middle of the
// dialog's work. This file decides what may begin then: one step at a time, and nothing is sent inside another step.

/** Refuses an opening while a step is under way or the dialog is open, also while an earlier exec() is still to return.
 */
bool SynccardDialog::beginOpening()
{
    if (step != NoStep || isVisible() || bExecuting)
        return false;
    step = Opening;
    forgetWaiting();
    return true;
}

/** Begins a poll or the writing of a new source, unless another step is under way. */
bool SynccardDialog::beginStep()
{
    if (step != NoStep)
        return false;
    step = Working;
    return true;
}

/** Begins an exit, or lets it wait for the step under way. Of several the first one waits; an opening drops them. */
bool SynccardDialog::beginExit(DialogCode exit)
{
    if (beginStep()) {
        bClosed = false;
        bExitWaits = false;
        return true;
    }
    if (step != Opening && !bExitWaits) {
        bExitWaits = true;
        waitingExit = exit;
    }
    return false;
}

/**
 * Ends a poll or a new source. What waits is carried out from the event loop, because an exit may end in the deletion
 * of the dialog, and with it of the widget or timer whose signal began this step.
 */
void SynccardDialog::endStep()
{
    step = bSourceWaits || bExitWaits ? Waiting : NoStep;
    if (step == Waiting)
        QTimer::singleShot(0, this, &SynccardDialog::carryOutWaiting);
}

/** Writes the source that is shown now, and leaves when no source waits any more. */
void SynccardDialog::carryOutWaiting()
{
    if (step != Waiting)
        return;
    step = NoStep;
    if (bSourceWaits) {
        bSourceWaits = false;
        on_comboBox_source_currentIndexChanged(comboBox_source->currentIndex());
    }
    if (step != NoStep || !bExitWaits)
        return;
    if (waitingExit == Accepted)
        accept();
    else
        reject();
}

/** Closes the dialog at the end of an exit, unless the host has closed it meanwhile. The host may delete it then. */
void SynccardDialog::endExit(DialogCode exit)
{
    const QPointer<SynccardDialog> self(this);
    if (!bClosed)
        done(exit);
    if (self)
        step = NoStep;
}

/** The dialog has been closed, by an exit or by the host. */
void SynccardDialog::noteClosed()
{
    bClosed = true;
    forgetWaiting();
}

void SynccardDialog::forgetWaiting()
{
    bSourceWaits = false;
    bExitWaits = false;
    if (step == Waiting)
        step = NoStep;
}

/** Runs the dialog modally. The dialog may be gone when exec() returns. */
int SynccardDialog::run()
{
    step = NoStep;
    bExecuting = true;
    const QPointer<SynccardDialog> self(this);
    const int result = exec();
    if (self)
        bExecuting = false;
    return result;
}
