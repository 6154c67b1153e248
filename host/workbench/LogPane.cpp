#include "LogPane.h"

#include "DevelopmentHost.h"
#include "FaultPane.h"
#include "FilteredTable.h"
#include "WireText.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTime>

#include <utility>

static constexpr int answerColumn = 3;
static constexpr int narrowest = 12;           // average characters of a column
static constexpr int sumMilliseconds = 100;    // so that no opening waits for the sum
static constexpr int slowMicroseconds = 10000; // longer than painting the table takes
static constexpr char timeFormat[] = "HH:mm:ss.zzz";

/** The data of a row's first cell, in addition to its line. */
enum Role {
    KindRole = FilteredTable::lineRole + 1, // "poll" if the row may be hidden, else "row"
    DurationRole,                           // milliseconds of a command
};

LogPane::LogPane(DevelopmentHost* host)
    : unpolled(new QSortFilterProxyModel(this)), table(new FilteredTable(unpolled, "Log")), sum(new QLabel)
{
    log.setHorizontalHeaderLabels({"Time", "Operation", "Command", "Answer", "Result", "Duration"});
    unpolled->setFilterRole(KindRole);
    unpolled->setSourceModel(&log);
    setColumnWidths();
    followEnd();
    auto* layout = new QFormLayout(this);
    layout->addRow("Fi&lter", table->filter());
    layout->addRow(table);
    layout->addRow(createFooter());
    layout->addRow(createFaultPane(host));
    connect(&host->channel(), &ControllerChannel::executed, this, &LogPane::addCommand);
    connect(&host->channel(), &ControllerChannel::reported, this,
            [this](auto& category, auto& tag, int flag, auto& message) {
                addMessage("report", escaped(message.toLatin1()),
                           QString("%1 %2 %3").arg(category, tag, QString::number(flag)));
            });
    connect(host, &DevelopmentHost::noted, this, [this](auto& text) { addMessage("note", text, {}); });
    showing.setSingleShot(true);
    connect(&showing, &QTimer::timeout, this, &LogPane::showPending);
    summing.setSingleShot(true);
    summing.setInterval(sumMilliseconds);
    connect(&summing, &QTimer::timeout, this, &LogPane::sumUp);
    const auto sumSoon = [this] { summing.start(); };
    connect(&log, &QAbstractItemModel::rowsInserted, this, sumSoon);
    connect(table->model(), &QAbstractItemModel::rowsRemoved, this, sumSoon);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this, sumSoon);
}

/** Adds a command. Shows a slow one at once, because the event loop might not run before the module's last command. */
void LogPane::addCommand(const CommandRecord& record)
{
    addLater([this, record, time = QTime::currentTime()] {
        const bool hasFailed = record.result != 0;
        const double milliseconds = static_cast<double>(record.microseconds) / 1000.0;
        addRow({time.toString(timeFormat), textOf(record.operation), escaped(record.command), escaped(record.answer),
                hasFailed ? "failed" : "ok", QString("%1 ms").arg(milliseconds, 0, 'f', 3)},
               hasFailed, milliseconds, traitsOf(record.text()).isPolled && !hasFailed);
    });
    if (record.microseconds < slowMicroseconds)
        return;
    showPending();
    if (followsEnd)
        table->scrollToBottom();
    table->viewport()->repaint();
    sumUp();
    sum->repaint();
}

void LogPane::addMessage(const QString& kind, const QString& text, const QString& origin)
{
    const QString time = QTime::currentTime().toString(timeFormat);
    addLater([=] { addRow({time, kind, text, origin, {}, {}}, true); });
}

void LogPane::addLater(const std::function<void()>& add)
{
    pending.append(add);
    showing.start();
}

void LogPane::addRow(const QStringList& texts, bool isBold, const QVariant& milliseconds, bool isPoll)
{
    QFont bold;
    bold.setBold(true);
    QList<QStandardItem*> items;
    for (const QString& text : texts) {
        items.append(new QStandardItem(text));
        items.last()->setToolTip(FilteredTable::toolTip(text));
        if (isBold)
            items.last()->setFont(bold);
    }
    items.first()->setData(texts.join('\t'), FilteredTable::lineRole);
    items.first()->setData(isPoll ? "poll" : "row", KindRole);
    items.first()->setData(milliseconds, DurationRole);
    log.appendRow(items);
}

void LogPane::showPending()
{
    const auto added = std::exchange(pending, {});
    for (const auto& add : added)
        add();
}

void LogPane::setColumnWidths()
{
    const int widest[] = {17, 12, 44, 12, 12, 16}; // in average characters
    for (int column = 0; column < log.columnCount(); ++column)
        table->setColumnWidth(column, widest[column] * table->fontMetrics().averageCharWidth());
    table->horizontalHeader()->setMinimumSectionSize(narrowest * table->fontMetrics().averageCharWidth());
    table->horizontalHeader()->setSectionResizeMode(answerColumn, QHeaderView::Stretch);
}

/** Keeps the newest row in view while the user has the table scrolled to its end. */
void LogPane::followEnd()
{
    QScrollBar* bar = table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) { followsEnd = value == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int minimum, int maximum) {
        followsEnd = followsEnd || minimum == maximum;
        if (followsEnd)
            bar->setValue(maximum);
    });
}

QBoxLayout* LogPane::createFooter()
{
    auto* hidePolls = new QCheckBox("&Hide polls");
    connect(hidePolls, &QCheckBox::toggled, unpolled,
            [this](bool isOn) { unpolled->setFilterFixedString(isOn ? "row" : ""); });
    hidePolls->setChecked(true);
    auto* copy = new QPushButton("Co&py");
    connect(copy, &QPushButton::clicked, table, &FilteredTable::copy);
    auto* clear = new QPushButton("Cl&ear");
    connect(clear, &QPushButton::clicked, this, [this] {
        showPending();
        log.removeRows(0, log.rowCount());
    });
    auto* row = new QHBoxLayout;
    row->addWidget(sum, 1);
    row->addWidget(hidePolls);
    row->addWidget(copy);
    row->addWidget(clear);
    return row;
}

/** Sums up the selected rows, or all rows shown without a selection. */
void LogPane::sumUp()
{
    int commands = 0;
    double milliseconds = 0;
    const QModelIndexList rows = table->chosenRows();
    for (const QModelIndex& row : rows) {
        const QVariant duration = row.data(DurationRole);
        commands += duration.isValid() ? 1 : 0;
        milliseconds += duration.toDouble();
    }
    sum->setText(QString("%1 of %2 rows, %3 %4, %5 ms")
                     .arg(rows.size())
                     .arg(log.rowCount())
                     .arg(commands)
                     .arg(commands == 1 ? "command" : "commands")
                     .arg(milliseconds, 0, 'f', 1));
}
