#include "SynccardDialog.h"

#include "IOManager.h"
#include "answers.h"
#include "keywords.h"
#include "reporterror.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QtNumeric>

namespace {

constexpr int rowHeight = 20;                  // pixels
constexpr int defaultRowHeight = 28;           // pixels, but every row that is shown gets rowHeight instead
constexpr int initialChannelColumnWidth = 200; // pixels, until channels are listed
constexpr int channelColumnWidth = 110;        // pixels
constexpr int delayColumnWidth = 110;          // pixels
constexpr double defaultMaximumDelayMilliseconds = 300.0;

double microseconds(double milliseconds)
{
    return milliseconds * Channel::microsecondsPerMillisecond;
}

} // namespace

void SynccardDialog::update_comboBox_output()
{
    comboBox_output->clear();
    const bool hasChoice = isProtocolAtLeast(1, 23) && offer_outputs() > 1;
    label_output->setEnabled(hasChoice);
    setEditable(comboBox_output, hasChoice);
    if (!hasChoice)
        return;
    TextAnswer current;
    if (cm->getParameter(current.buffer(), "synccard output d01") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard output"));
        return;
    }
    comboBox_output->setCurrentIndex(comboBox_output->findData(current.text()));
}

/** Lists the outputs that card 1 can drive from the selected source and returns their number. */
int SynccardDialog::offer_outputs()
{
    const QByteArray source = comboBox_source->currentData().toString().toLatin1();
    for (const Choice& output : syncOutputs) {
        TextAnswer answer;
        if (cm->getParameter(answer.buffer(), "synccard has_output d01 %s %s", source.constData(), output.keyword) != 0)
            reportError(cm, QStringLiteral("Error: Unable to get info synccard 1 has output %2")
                                .arg(QLatin1String(output.keyword)));
        else if (answer.isYes())
            comboBox_output->addItem(tr(output.description), QString::fromLatin1(output.keyword));
    }
    return comboBox_output->count();
}

void SynccardDialog::on_comboBox_output_currentIndexChanged(int /*idx*/)
{
    if (bUserAction)
        bSomethingChanged = true;
}

void SynccardDialog::setup_tableWidget_channels()
{
    tableWidget_channels->verticalHeader()->hide();
    tableWidget_channels->setColumnCount(ChannelColumnCount);
    tableWidget_channels->horizontalHeader()->resizeSection(ChannelColumn, initialChannelColumnWidth);
    tableWidget_channels->horizontalHeader()->setStretchLastSection(true);
    tableWidget_channels->setHorizontalHeaderLabels(
        {tr("Channel"), tr("Delay [us]"), tr("Active during idle"), tr("Max delay")});
    tableWidget_channels->verticalHeader()->setDefaultSectionSize(defaultRowHeight);
    // The style's own minimum, 21 pixels or more depending on the font, would make the rows taller than rowHeight.
    tableWidget_channels->verticalHeader()->setMinimumSectionSize(rowHeight);
    tableWidget_channels->horizontalHeader()->setSectionsClickable(false);
    tableWidget_channels->setSelectionMode(QAbstractItemView::NoSelection);
    tableWidget_channels->setTabKeyNavigation(false); // Tab goes on to the next control
    tableWidget_channels->setAccessibleName(tableWidget_channels->whatsThis());
    tableWidget_channels->setItemDelegateForColumn(DelayColumn, &doubleSpinboxDelegate);
    tableWidget_channels->setColumnHidden(MaximumDelayColumn, true);
}

void SynccardDialog::update_tableWidget_channels()
{
    tableWidget_channels->clearContents();
    tableWidget_channels->setRowCount(0);
    if (!hasCurrentCard())
        return;
    int channels = 0;
    if (cm->getParameterInt(&channels, "synccard number_of_channels d01") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get number of channels from synccard 1"));
        channels = 0;
    }
    double maximumDelay = defaultMaximumDelayMilliseconds;
    if (cm->getParameterDouble(&maximumDelay, "synccard max_output_delay d01") != 0
        || !qIsFinite(microseconds(maximumDelay))) {
        reportError(cm, QStringLiteral("Error: Unable to get max output delay from synccard 1"));
        maximumDelay = defaultMaximumDelayMilliseconds;
    }
    const auto* card = tableWidget_synccards->item(tableWidget_synccards->currentRow(), ModelColumn);
    const bool hasFixedIdle = card && card->data(Qt::UserRole).toString() == QLatin1String("0x0301");
    const Qt::ItemFlags idleFlags =
        hasFixedIdle ? Qt::ItemFlags(Qt::ItemIsUserCheckable) : Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    const QString maximumText = QString::number(microseconds(maximumDelay), 'f', 1);
    // Without the blocker, each row would signal four cell changes that nothing needs.
    const QSignalBlocker blocker(tableWidget_channels);
    tableWidget_channels->setRowCount(boundedCount(channels));
    for (int row = 0; row < tableWidget_channels->rowCount(); ++row)
        show_channel(row, maximumText, idleFlags);
    tableWidget_channels->setColumnWidth(ChannelColumn, channelColumnWidth);
    tableWidget_channels->setColumnWidth(DelayColumn, delayColumnWidth);
}

/** Fills a row. Sets an item's properties before the table gets it: later, each of them would signal a change. */
void SynccardDialog::show_channel(int row, const QString& maximumDelay, Qt::ItemFlags idleFlags)
{
    const int channel = row + 1;
    auto* delayItem = new QTableWidgetItem(QString::number(microseconds(read_delay(channel)), 'f', 0));
    delayItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* idleItem = new QTableWidgetItem;
    idleItem->setFlags(idleFlags);
    idleItem->setCheckState(read_active_during_idle(channel) ? Qt::Checked : Qt::Unchecked);
    auto* channelItem = new QTableWidgetItem(QString::number(channel));
    channelItem->setFlags(Qt::ItemIsEnabled);

    tableWidget_channels->setItem(row, ChannelColumn, channelItem);
    tableWidget_channels->setItem(row, DelayColumn, delayItem);
    tableWidget_channels->setItem(row, IdleColumn, idleItem);
    tableWidget_channels->setItem(row, MaximumDelayColumn, new QTableWidgetItem(maximumDelay));
    tableWidget_channels->setRowHeight(row, rowHeight);
}

/** Returns the channel's output delay in milliseconds ("synccard output_delay"), or 0 if it cannot be read. */
double SynccardDialog::read_delay(int channel)
{
    double delay = 0.0;
    if (cm->getParameterDouble(&delay, "synccard output_delay d01 ch%2.2d", channel) == 0
        && qIsFinite(microseconds(delay)))
        return delay;
    reportError(cm, QStringLiteral("Error: Unable to get output delay from synccard 1 channel ch0%2").arg(channel));
    return 0.0;
}

bool SynccardDialog::read_active_during_idle(int channel)
{
    TextAnswer answer;
    if (cm->getParameter(answer.buffer(), "synccard output_during_idle d01 ch%2.2d", channel) == 0)
        return answer.isYes();
    reportError(cm, QStringLiteral("Error: Unable to get infomation output during idle from synccard 1 channel ch0%2")
                        .arg(channel));
    return false;
}

void SynccardDialog::on_tableWidget_channels_cellChanged(int /*row*/, int /*column*/)
{
    if (bUserAction)
        bSomethingChanged = true;
}
