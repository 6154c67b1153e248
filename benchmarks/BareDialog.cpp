#include "BareDialog.h"

#include <QHeaderView>
#include <QItemDelegate>

namespace {

// All sizes are in pixels, as in the module.
constexpr int cardRowHeight = 28;
constexpr int channelRowHeight = 20;
constexpr int initialColumnWidth = 200;
constexpr int modelColumnWidth = 165;
constexpr int channelColumnWidth = 110;

} // namespace

BareDialog::BareDialog(QWidget* parent, const Workload& workload) : QDialog(parent), workload(workload)
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

void BareDialog::showDetails(bool isShown)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             label_source, comboBox_source, label_output, comboBox_output, label_frequency, doubleSpinBox_frequency,
             label_externalDivisor, spinBox_externalDivisor, tableWidget_channels})
        widget->setVisible(isShown);
}

int BareDialog::update_and_exec()
{
    setWindowIcon(parentWidget()->windowIcon());
    label_error->setVisible(false);
    frame_syncinput->setVisible(true);
    fillCards();
    fillControls();
    fillChannels();
    doubleSpinBox_frequency->setMinimumWidth(comboBox_source->width());
    spinBox_externalDivisor->setMinimumWidth(comboBox_source->width());
    return exec();
}

void BareDialog::fillCards()
{
    tableWidget_synccards->setRowCount(0);
    for (int card = 0; card < workload.cards; ++card) {
        tableWidget_synccards->insertRow(0);
        auto* modelItem = new QTableWidgetItem(QStringLiteral("Sync card"));
        tableWidget_synccards->setItem(0, 0, modelItem);
        modelItem->setData(Qt::UserRole, QStringLiteral("0x0402"));
        auto* serialItem = new QTableWidgetItem(QStringLiteral("4711"));
        tableWidget_synccards->setItem(0, 1, serialItem);
        serialItem->setTextAlignment(Qt::AlignCenter);
        serialItem->setData(Qt::UserRole, 4711);
    }
    tableWidget_synccards->setCurrentCell(0, 0);
    tableWidget_synccards->setColumnWidth(0, modelColumnWidth);
}

void BareDialog::fillControls()
{
    comboBox_modes->clear();
    for (int mode = 0; mode < workload.modes; ++mode)
        comboBox_modes->addItem(QStringLiteral("Mode m100"), QStringLiteral("m100"));
    comboBox_modes->addItem("direct settings", "direct settings");
    comboBox_modes->setCurrentIndex(workload.modes);
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
    doubleSpinBox_frequency->setMaximum(maximumValue);
    doubleSpinBox_frequency->setValue(usualValue);
    label_externalDivisor->setDisabled(true);
    spinBox_externalDivisor->setDisabled(true);
    spinBox_externalDivisor->setMinimum(0);
    spinBox_externalDivisor->setMaximum(100);
    spinBox_externalDivisor->setValue(1);
}

void BareDialog::fillChannels()
{
    tableWidget_channels->clearContents();
    tableWidget_channels->setRowCount(0);
    for (int row = 0; row < workload.channels; ++row) {
        tableWidget_channels->insertRow(row);
        auto* channelItem = new QTableWidgetItem(QString::number(row + 1));
        tableWidget_channels->setItem(row, 0, channelItem);
        channelItem->setFlags(Qt::ItemIsEnabled);
        auto* delayItem = new QTableWidgetItem(QString::number(usualValue * 1000.0, 'f', 0));
        tableWidget_channels->setItem(row, 1, delayItem);
        auto* idleItem = new QTableWidgetItem;
        tableWidget_channels->setItem(row, 2, idleItem);
        idleItem->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        idleItem->setCheckState(Qt::Checked);
        auto* maximumItem = new QTableWidgetItem(QString::number(maximumValue * 1000.0, 'f', 1));
        tableWidget_channels->setItem(row, 3, maximumItem);
        delayItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tableWidget_channels->setRowHeight(row, channelRowHeight);
    }
    tableWidget_channels->setColumnWidth(0, channelColumnWidth);
    tableWidget_channels->setColumnWidth(1, channelColumnWidth);
}
