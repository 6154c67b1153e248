#include "SynccardDialog.h"

#include "IOManager.h"
#include "answers.h"
#include "reporterror.h"

namespace {

constexpr int partAfterQuotes = 2; // of a text split at its quotes: 0 is before them, 1 between them
constexpr int activeModeWord = 4;  // counted from 0: "zorvan2 get synccard active_mode MODE"

} // namespace

int SynccardDialog::update_and_exec_prot_version_0_8()
{
    if (!update_legacy_card())
        return -1;
    QString activeMode;
    if (!list_modes() || !read_active_mode(&activeMode))
        return -1;
    comboBox_modes->setCurrentIndex(comboBox_modes->findData(activeMode));
    updateWidthContols();
    return run();
}

/** Shows the single card of a legacy controller. Hides the sync-input labels, and no later opening shows them again. */
bool SynccardDialog::update_legacy_card()
{
    tableWidget_synccards->setRowCount(0);
    label_syncInput->hide();
    label_inputSource1->hide();
    label_inputSource->hide();
    label_inputFrequency1->hide();
    label_inputFrequency->hide();
    frame_syncinput->layout()->activate(); // Otherwise the dialog would shrink after it is shown.

    TextAnswer result;
    if (cm->sendCommand(result.buffer(), "zorvan2 get synccard synccard") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard device info"));
        return false;
    }
    const QString serial = result.text()
                               .section(QLatin1Char('"'), partAfterQuotes, partAfterQuotes)
                               .simplified()
                               .section(QLatin1Char(' '), 0, 0);
    auto* serialItem = new QTableWidgetItem(serial);
    serialItem->setTextAlignment(Qt::AlignCenter);
    tableWidget_synccards->insertRow(0);
    tableWidget_synccards->setItem(0, ModelColumn, new QTableWidgetItem(result.quoted()));
    tableWidget_synccards->setItem(0, SerialColumn, serialItem);
    return true;
}

int SynccardDialog::update_comboBox_modes()
{
    if (!list_modes())
        return -1;
    if (isProtocolAtLeast(1, 2))
        comboBox_modes->addItem(tr("direct settings"), QLatin1String("direct settings"));
    QString mode;
    if (!read_active_mode(&mode))
        return -1;
    if (mode == QLatin1String("none"))
        mode = QLatin1String("direct settings");
    comboBox_modes->setCurrentIndex(comboBox_modes->findData(mode));
    return 0;
}

/** Lists the predefined modes that can be read. Returns false if the number of modes cannot be read. */
bool SynccardDialog::list_modes()
{
    comboBox_modes->clear();
    int num_modes = 0;
    if (cm->getParameterInt(&num_modes, "synccard number_of_modes") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard number of modes"));
        return false;
    }
    for (int i = 1; i <= boundedCount(num_modes); ++i)
        add_mode(i);
    return true;
}

void SynccardDialog::add_mode(int number)
{
    TextAnswer id;
    if (cm->getParameter(id.buffer(), "synccard mode t%02d", number) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard mode"));
        return;
    }
    TextAnswer result;
    if (cm->sendCommand(result.buffer(), "zorvan2 get synccard mode_desc %s", id.buffer()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard mode description"));
        return;
    }
    comboBox_modes->addItem(result.quoted(), id.text());
}

bool SynccardDialog::read_active_mode(QString* mode)
{
    TextAnswer result;
    if (cm->sendCommand(result.buffer(), "zorvan2 get synccard active_mode") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard active mode"));
        return false;
    }
    *mode = result.text().section(QLatin1Char(' '), activeModeWord, activeModeWord);
    return true;
}

void SynccardDialog::on_comboBox_modes_currentIndexChanged(const QString& s)
{
    showDetails(isDirectSettings(s));
    if (bUserAction)
        bSomethingChanged = true;
}

bool SynccardDialog::isDirectSettings(const QString& itemText) const
{
    return itemText == tr("direct settings");
}
