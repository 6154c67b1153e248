#include "SynccardDialog.h"

#include "IOManager.h"
#include "answers.h"
#include "reporterror.h"

void SynccardDialog::show_frame_syncinput_if_necessary()
{
    bool bHasSyncInput = false;
    const int result = cm->getParameterBool(&bHasSyncInput, "synccard has_input_frequency");
    frame_syncinput->setVisible(result == 0 && bHasSyncInput);
}

/** Polls the sync input. Skips a poll that is due while another step is under way. */
void SynccardDialog::poll_input_frequency()
{
    if (!beginStep())
        return;
    update_input_frequency();
    endStep();
}

void SynccardDialog::update_input_frequency()
{
    FlagAnswer has_input_frequency;
    if (cm->getParameter(has_input_frequency.buffer(), "synccard has_input_frequency") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard has input frequency"));
        return;
    }
    QString sSource;
    QString sFrequency;
    if (has_input_frequency.isYes()) {
        TextAnswer input_frequency;
        if (cm->getParameter(input_frequency.buffer(), "synccard input_frequency") != 0) {
            reportError(cm, QStringLiteral("Error: Unable to get Synccard input frequency"));
        } else {
            const QString answer = input_frequency.text();
            sSource = answer.section(QLatin1Char(' '), 0, 0);
            sFrequency = answer.section(QLatin1Char(' '), 1, 1);
            // Without a frequency, the controller answers "-" and the reason in quotes.
            if (sFrequency == QLatin1String("-"))
                sFrequency = answer.section(QLatin1Char(' '), 2).remove(QLatin1Char('"'));
        }
    }
    label_inputSource->setText(sSource);
    label_inputFrequency->setText(sFrequency);
}
