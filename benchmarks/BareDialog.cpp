#include "BareDialog.h"

#include <QHeaderView>
#include <QItemDelegate>

namespace {

// All in pixels, as in the module.
constexpr int cardRowHeight = 28;
constexpr int channelRowHeight = 20;
constexpr int initialColumnWidth = 200;
constexpr int modelColumnWidth = 165;
constexpr int channelColumnWidth = 110;

struct Mode
{
    QString id;
    QString text;
};

/** The modes m001 to m099, made once, so that making them counts for neither side. */
const QVector<Mode>& allModes()
{
    static const QVector<Mode> modes = [] {
        QVector<Mode> made;
        for (int number = 1; number <= 99; ++number) {
            const QString id = QString("m%1").arg(number, 3, 10, QLatin1Char('0'));
            made.append({id, "Mode " + id});
        }
        return made;
    }();
    return modes;
}

} // namespace

BareDialog::BareDialog(QWidget* parent) : QDialog(parent)
{
    setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    label_inputSource->setTextFormat(Qt::PlainText);
    label_inputFrequency->setTextFormat(Qt::PlainText);
    setUpTable(tableWidget_synccards, {"Model", "Serial"});
    tableWidget_synccards->setSelectionBehavior(QAbstractItemView::SelectRows);
    tableWidget_synccards->setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUpTable(tableWidget_channels, {"Channel", "Delay [us]", "Active during idle", "Max delay"});
    tableWidget_channels->verticalHeader()->setMinimumSectionSize(channelRowHeight);
    tableWidget_channels->setItemDelegateForColumn(1, new QItemDelegate(this));
    tableWidget_channels->setColumnHidden(3, true);
    showDetails(false);
}

void BareDialog::setUpTable(QTableWidget* table, const QStringList& headers)
{
    table->verticalHeader()->hide();
    table->setColumnCount(headers.size());
    table->horizontalHeader()->resizeSection(0, initialColumnWidth);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setRowCount(0);
    table->setHorizontalHeaderLabels(headers);
    table->verticalHeader()->setDefaultSectionSize(cardRowHeight);
    table->horizontalHeader()->setSectionsClickable(false);
    table->setSelectionMode(QAbstractItemView::NoSelection);
}

void BareDialog::on_comboBox_modes_currentIndexChanged(const QString& text)
{
    showDetails(text == "direct settings");
    mark();
}

void BareDialog::showDetails(bool isShown)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             label_source, comboBox_source, label_output, comboBox_output, label_frequency, doubleSpinBox_frequency,
             label_externalDivisor, spinBox_externalDivisor, tableWidget_channels})
        widget->setVisible(isShown);
}

void BareDialog::fill(const Workload& workload)
{
    isUserAction = false;
    setWindowIcon(parentWidget()->windowIcon());
    enableAll();
    frame_syncinput->setVisible(true);
    fillCards(workload.cards);
    fillModes(workload.modes);
    fillSettings();
    fillChannels(workload.channels);
    doubleSpinBox_frequency->setMinimumWidth(comboBox_source->width());
    spinBox_externalDivisor->setMinimumWidth(comboBox_source->width());
    isUserAction = true;
    hasChanged = false;
}

void BareDialog::enableAll()
{
    label_error->setText(QString());
    label_error->setVisible(false);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             tableWidget_synccards, label_syncInput, label_inputSource1, label_inputSource, label_inputFrequency1,
             label_inputFrequency, label_supportedSynccardModes, comboBox_modes, pushButton_Ok, label_source,
             label_output, comboBox_source, comboBox_output, doubleSpinBox_frequency, tableWidget_channels,
             label_frequency})
        widget->setEnabled(true);
}

void BareDialog::fillCards(int cards)
{
    tableWidget_synccards->setRowCount(0);
    for (int card = 1; card <= cards; ++card) {
        const int serial = 10000 + card;
        tableWidget_synccards->insertRow(0);
        auto* modelItem = new QTableWidgetItem(QStringLiteral("Sync card"));
        tableWidget_synccards->setItem(0, 0, modelItem);
        modelItem->setData(Qt::UserRole, QStringLiteral("0x0402"));
        auto* serialItem = new QTableWidgetItem(QString::number(serial));
        tableWidget_synccards->setItem(0, 1, serialItem);
        serialItem->setTextAlignment(Qt::AlignCenter);
        serialItem->setData(Qt::UserRole, serial);
    }
    tableWidget_synccards->setCurrentCell(0, 0);
    tableWidget_synccards->setColumnWidth(0, modelColumnWidth);
}

void BareDialog::fillModes(int modes)
{
    comboBox_modes->clear();
    for (int mode = 0; mode < modes; ++mode)
        comboBox_modes->addItem(allModes().at(mode).text, allModes().at(mode).id);
    comboBox_modes->addItem("direct settings", "direct settings");
    comboBox_modes->setCurrentIndex(modes);
}

void BareDialog::fillSettings()
{
    comboBox_source->clear();
    comboBox_source->addItem("internal generated signal", "internal");
    comboBox_source->addItem("external video signal", "video");
    comboBox_source->addItem("external TTL signal", "ttl");
    comboBox_source->addItem("external inverted TTL signal", "ttlinv");
    comboBox_source->addItem("external TTL signal both edges", "ttlboth");
    comboBox_source->setCurrentIndex(0);
    comboBox_output->clear();
    comboBox_output->addItem("video", "video");
    comboBox_output->addItem("ttl", "ttl");
    comboBox_output->addItem("ttl inverted", "ttlinv");
    comboBox_output->setCurrentIndex(1);
    doubleSpinBox_frequency->setMinimum(10.0);
    doubleSpinBox_frequency->setMaximum(maximumFrequencyHz);
    doubleSpinBox_frequency->setValue(frequencyHz);
    label_externalDivisor->setDisabled(true);
    spinBox_externalDivisor->setDisabled(true);
    spinBox_externalDivisor->setMinimum(0);
    spinBox_externalDivisor->setMaximum(maximumDivisor);
    spinBox_externalDivisor->setValue(1);
}

void BareDialog::fillChannels(int channels)
{
    tableWidget_channels->clearContents();
    tableWidget_channels->setRowCount(0);
    for (int channel = 1; channel <= channels; ++channel) {
        const int row = tableWidget_channels->rowCount();
        tableWidget_channels->insertRow(row);
        auto* channelItem = new QTableWidgetItem(QString::number(channel));
        tableWidget_channels->setItem(row, 0, channelItem);
        channelItem->setFlags(Qt::ItemIsEnabled);
        auto* delayItem = new QTableWidgetItem(QString::number(delayMilliseconds(channel) * 1000.0, 'f', 0));
        tableWidget_channels->setItem(row, 1, delayItem);
        auto* idleItem = new QTableWidgetItem;
        tableWidget_channels->setItem(row, 2, idleItem);
        idleItem->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        idleItem->setCheckState(isActiveDuringIdle(channel) ? Qt::Checked : Qt::Unchecked);
        auto* maximumItem = new QTableWidgetItem(QString::number(maximumDelayMilliseconds * 1000.0, 'f', 1));
        tableWidget_channels->setItem(row, 3, maximumItem);
        delayItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tableWidget_channels->setRowHeight(row, channelRowHeight);
    }
    tableWidget_channels->setColumnWidth(0, channelColumnWidth);
    tableWidget_channels->setColumnWidth(1, channelColumnWidth);
}
