#include "SynccardDialog.h"

#include "BackendVersions.h"
#include "IOManager.h"
#include "answers.h"
#include "keywords.h"
#include "reporterror.h"

#include <QHeaderView>
#include <QtNumeric>

#include <charconv>

namespace {

constexpr int cardRowHeight = 28;            // pixels
constexpr int initialModelColumnWidth = 200; // pixels, until cards are listed
constexpr int modelColumnWidth = 165;        // pixels
constexpr double defaultFrequencyHz = 60.0;
constexpr double minimumInternalFrequencyHz = 10.0;
constexpr int defaultMaximumDivisor = 100;
constexpr int fixedDivisor = 2;

/** Returns the number at the start of a serial. Sets \a ok to false if it is missing or exceeds 64 bits. */
qlonglong leadingNumber(const QByteArray& token, bool* ok)
{
    qlonglong number = 0;
    *ok = std::from_chars(token.begin(), token.end(), number).ec == std::errc();
    return number;
}

} // namespace

void SynccardDialog::setup_tableWidget_synccards()
{
    tableWidget_synccards->verticalHeader()->hide();
    tableWidget_synccards->setColumnCount(CardColumnCount);
    tableWidget_synccards->horizontalHeader()->resizeSection(ModelColumn, initialModelColumnWidth);
    tableWidget_synccards->horizontalHeader()->setStretchLastSection(true);
    tableWidget_synccards->setHorizontalHeaderLabels({tr("Model"), tr("Serial")});
    tableWidget_synccards->verticalHeader()->setDefaultSectionSize(cardRowHeight);
    tableWidget_synccards->horizontalHeader()->setSectionsClickable(false);
    tableWidget_synccards->setTabKeyNavigation(false); // Tab goes on to the next control
    tableWidget_synccards->setAccessibleName(tableWidget_synccards->whatsThis());
}

/** Lists all cards. Returns false if their number or one of the cards cannot be read. */
bool SynccardDialog::update_tableWidget_synccards()
{
    int cards = 0;
    if (cm->getParameterInt(&cards, "synccard number_of_synccards") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get number of Synccards"));
        return false;
    }
    tableWidget_synccards->setRowCount(0);
    for (int i = 1; i <= boundedCount(cards); ++i) {
        if (!add_card(i))
            return false;
    }
    if (tableWidget_synccards->rowCount() > 0)
        tableWidget_synccards->setCurrentCell(0, ModelColumn);
    tableWidget_synccards->setColumnWidth(ModelColumn, modelColumnWidth);
    return true;
}

/** Inserts a card as the first row, so that card 1 ends up in the last row. Returns false if it cannot be read. */
bool SynccardDialog::add_card(int number)
{
    TextAnswer record;
    if (cm->getParameter(record.buffer(), "synccard synccard d%02d", number) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard device info"));
        return false;
    }
    const QString model = record.word(0);
    const QString serial = record.word(1);
    TextAnswer description;
    if (cm->getParameter(description.buffer(), "synccard model_desc %s", model.toLatin1().constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard model description"));
        return false;
    }
    bool isNumber = false;
    const qlonglong serialNumber = leadingNumber(serial.toLatin1(), &isNumber);
    const bool hasSerial = !serial.isEmpty() && !(isNumber && serialNumber == 0);

    auto* modelItem = new QTableWidgetItem(description.text().remove(QLatin1Char('"')));
    modelItem->setData(Qt::UserRole, model);
    // Not a QStringLiteral, because its text is in the plug-in's memory. The style keeps the text that it painted last,
    // even after the host has unloaded the plug-in.
    auto* serialItem = new QTableWidgetItem(hasSerial ? serial : QString(QLatin1Char('-')));
    serialItem->setTextAlignment(Qt::AlignCenter);
    serialItem->setData(Qt::UserRole, serialNumber);
    tableWidget_synccards->insertRow(0);
    tableWidget_synccards->setItem(0, ModelColumn, modelItem);
    tableWidget_synccards->setItem(0, SerialColumn, serialItem);
    return true;
}

/** Updates the direct settings. The source comes first, because output, frequency and divisor depend on it. */
void SynccardDialog::updateControlsDirectSettings()
{
    update_comboBox_source();
    update_comboBox_output();
    update_doubleSpinBox_frequency();
    update_spinBox_externalDivisor();
    update_tableWidget_channels();
}

void SynccardDialog::update_comboBox_source()
{
    comboBox_source->clear();
    if (!hasCurrentCard())
        return;
    for (const Choice& source : syncSources) {
        if (qstrcmp(source.keyword, "ttlboth") == 0 && !isProtocolAtLeast(1, 15))
            continue;
        TextAnswer answer;
        if (cm->getParameter(answer.buffer(), "synccard has_source d01 %s", source.keyword) != 0)
            reportError(cm, QStringLiteral("Error: Unable to get info synccard 1 has source %2")
                                .arg(QLatin1String(source.keyword)));
        else if (answer.isYes())
            comboBox_source->addItem(tr(source.description), QString::fromLatin1(source.keyword));
    }
    // During an opening, the current row is the first one, so this command asks card 1. The row shows the last card.
    TextAnswer current;
    if (cm->getParameter(current.buffer(), "synccard source d%2.2d", tableWidget_synccards->currentRow() + 1) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard source"));
        return;
    }
    comboBox_source->setCurrentIndex(comboBox_source->findData(current.text()));
}

void SynccardDialog::update_doubleSpinBox_frequency()
{
    if (!hasCurrentCard())
        return;
    if (comboBox_source->currentData().toString() == QLatin1String("internal")) {
        show_internal_frequency();
        return;
    }
    label_frequency->setDisabled(true);
    doubleSpinBox_frequency->setDisabled(true);
    doubleSpinBox_frequency->setMinimum(0.0);
    doubleSpinBox_frequency->setMaximum(defaultFrequencyHz);
    doubleSpinBox_frequency->setValue(0.0);
}

void SynccardDialog::show_internal_frequency()
{
    double maximum = defaultFrequencyHz;
    if (isProtocolAtLeast(1, 5)
        && (cm->getParameterDouble(&maximum, "synccard max_internal_frequency d01") != 0 || !qIsFinite(maximum))) {
        reportError(cm, QStringLiteral("Error: Unable to get maximum internal frequency from synccard 1"));
        maximum = defaultFrequencyHz;
    }
    double frequency = defaultFrequencyHz;
    if (cm->getParameterDouble(&frequency, "synccard internal_frequency d01") != 0 || !qIsFinite(frequency)) {
        reportError(cm, QStringLiteral("Error: Unable to get internal frequency from synccard 1"));
        frequency = defaultFrequencyHz;
    }
    label_frequency->setEnabled(true);
    setEditable(doubleSpinBox_frequency, true);
    doubleSpinBox_frequency->setMinimum(minimumInternalFrequencyHz);
    doubleSpinBox_frequency->setMaximum(maximum);
    doubleSpinBox_frequency->setValue(frequency);
}

void SynccardDialog::update_spinBox_externalDivisor()
{
    if (!hasCurrentCard())
        return;
    const QString source = comboBox_source->currentData().toString();
    if (source == QLatin1String("internal")) {
        label_externalDivisor->setDisabled(true);
        spinBox_externalDivisor->setDisabled(true);
        spinBox_externalDivisor->setMinimum(0);
        spinBox_externalDivisor->setMaximum(defaultMaximumDivisor);
        spinBox_externalDivisor->setValue(1);
    } else if (isProtocolWithoutDivisor() && beVers->hubModel().startsWith(QLatin1String("QUILLSTONE"))) {
        label_externalDivisor->setDisabled(true);
        spinBox_externalDivisor->setDisabled(true);
        spinBox_externalDivisor->setMinimum(fixedDivisor);
        spinBox_externalDivisor->setMaximum(fixedDivisor);
        spinBox_externalDivisor->setValue(fixedDivisor);
    } else {
        show_external_divisor(source);
    }
}

void SynccardDialog::show_external_divisor(const QString& source)
{
    constexpr int minimum = 1;
    int divisor = 1;
    if (cm->getParameterInt(&divisor, "synccard external_divisor d01") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get external divisor from synccard 1"));
        divisor = 1;
    }
    int maximum = defaultMaximumDivisor;
    if (cm->getParameterInt(&maximum, "synccard max_external_divisor d01 %s", source.toLatin1().constData()) != 0) {
        reportError(
            cm, QStringLiteral("Error: Unable to get maximum external divisor from synccard 1 with %2").arg(source));
        maximum = 1;
    }
    // A divisor with a single possible value is shown, but disabled.
    const bool isFixed = maximum <= minimum;
    label_externalDivisor->setDisabled(isFixed);
    setEditable(spinBox_externalDivisor, !isFixed);
    spinBox_externalDivisor->setMinimum(minimum);
    spinBox_externalDivisor->setMaximum(maximum);
    spinBox_externalDivisor->setValue(divisor);
}

bool SynccardDialog::isProtocolWithoutDivisor() const
{
    return isProtocolAtLeast(1, 9) && !isProtocolAtLeast(1, 11);
}

void SynccardDialog::on_comboBox_source_currentIndexChanged(int idx)
{
    const QString source = comboBox_source->itemData(idx).toString();
    if (!bUserAction || source.isEmpty() || !beginSource())
        return;
    if (setSourceToHub(source) == 0) {
        update_doubleSpinBox_frequency();
        update_spinBox_externalDivisor();
        update_comboBox_output();
    }
    bSomethingChanged = true;
    endStep();
}

void SynccardDialog::on_doubleSpinBox_frequency_valueChanged(double /*value*/)
{
    if (bUserAction)
        bSomethingChanged = true;
}

void SynccardDialog::on_spinBox_externalDivisor_valueChanged(int /*value*/)
{
    if (bUserAction)
        bSomethingChanged = true;
}
