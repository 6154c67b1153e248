#include "SynccardDialog.h"

#include "IOManager.h"
#include "answers.h"
#include "reporterror.h"

#include <QMessageBox>
#include <QPointer>

/** Keeps the current settings so that Cancel can restore them. Without a current card, the earlier snapshot stays. */
void SynccardDialog::storePreviousSettings()
{
    if (!hasCurrentCard())
        return;
    Synccard* card = previousSettings.getSynccard(0);
    if (!card) {
        card = new Synccard(0);
        previousSettings.add(card);
    }
    card->setActiveMode(comboBox_modes->currentData().toString());
    card->setActiveSource(comboBox_source->currentData().toString());
    card->setFrequency(doubleSpinBox_frequency->value());
    card->setExternalDivisor(spinBox_externalDivisor->value());
    sSentSource = card->activeSource();
}

void SynccardDialog::accept()
{
    if (!beginExit(Accepted))
        return;
    synccards.clear();
    if (bSomethingChanged && comboBox_modes->currentIndex() >= 0) {
        // Read before the first command: OK writes the values that are shown when the user presses it.
        const QByteArray source = comboBox_source->currentData().toString().toLatin1();
        const QByteArray output = comboBox_output->currentData().toString().toLatin1();
        const bool isDirect = isDirectSettings(comboBox_modes->currentText());
        const bool isApplied = isDirect ? saveDirectSettings() == 0 : applyMode();
        if (!isApplied && !warnOfFailedChange())
            return;
        setSyncOutputToHub(source, output);
    }
    endExit(Accepted);
}

void SynccardDialog::reject()
{
    if (!beginExit(Rejected))
        return;
    synccards.clear();
    if (bSynccardAvailable) {
        storeActualDirectSettingsToSynccardList(); // the values shown, to compare with the snapshot
        restorePreviousSettings();
    }
    endExit(Rejected);
}

bool SynccardDialog::applyMode()
{
    const QByteArray mode = comboBox_modes->currentData().toString().toLatin1();
    if (cm->setParameter("synccard active_mode %s", mode.constData()) == 0)
        return true;
    reportError(cm, QStringLiteral("Error: Unable to set Synccard active mode"));
    return false;
}

/** Shows the warning box. Returns false if the dialog was deleted with its parent while the box was open. */
bool SynccardDialog::warnOfFailedChange()
{
    const QPointer<SynccardDialog> self(this);
    // The box is on the heap, because the dialog owns it: if the dialog is deleted meanwhile, it deletes the box.
    const QPointer<QMessageBox> box(new QMessageBox(
        QMessageBox::Critical, tr("Warning"), tr("Error occured while performing the change"), QMessageBox::Ok, this));
    box->exec();
    delete box.data();
    return !self.isNull();
}

/**
 * Restores the source if the source last sent is a different one. Then restores the frequency or the divisor, which may
 * have changed with the source. Does nothing unless the dialog was opened with direct settings and still shows them.
 */
void SynccardDialog::restorePreviousSettings()
{
    const Synccard* current = synccards.getSynccard(0);
    if (!current || previousSettings.size() == 0)
        return;
    const Synccard& previous = *previousSettings.at(0);
    if (previous.activeMode() != QLatin1String("direct settings"))
        return;
    if (previous.activeSource() != sSentSource && !restoreSource(previous.activeSource()))
        return;
    if (previous.activeSource() == QLatin1String("internal")) {
        if (previous.frequency() != current->frequency()
            && cm->setParameter("synccard internal_frequency d01 %.6f", previous.frequency()) != 0)
            reportError(cm, QStringLiteral("Error: Unable to set Synccard internal frequency"));
    } else if (previous.externalDivisor() != current->externalDivisor()
               && cm->setParameter("synccard external_divisor d01 %d", previous.externalDivisor()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to set Synccard external divisor"));
    }
}

/**
 * Writes the source back. Returns false, so that nothing more is restored, if the card no longer offers the source or
 * the query fails.
 */
bool SynccardDialog::restoreSource(const QString& source)
{
    const QByteArray keyword = source.toLatin1();
    TextAnswer answer;
    if (cm->getParameter(answer.buffer(), "synccard has_source d01 %s", keyword.constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard source"));
        return false;
    }
    if (!answer.isYes())
        return false;
    setSourceToHub(source);
    return true;
}
