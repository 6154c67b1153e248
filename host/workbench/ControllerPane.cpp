#include "ControllerPane.h"

#include "ControllerText.h"
#include "DevelopmentHost.h"
#include "FilteredTable.h"
#include "WireText.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSet>

enum Column { CommandColumn, AnswerColumn };

/** Returns the command or the answer in a line of a controller file. */
static QString cellOf(const QString& line, int column)
{
    const int separator = line.indexOf('=');
    return (column == CommandColumn ? line.left(separator) : line.mid(separator + 1)).trimmed();
}

/** Returns \a table as lines of a controller file, without its description. */
static QStringList linesOf(const ControllerTable& table)
{
    QStringList lines = linesOf(written(table));
    lines.removeFirst();
    lines.removeAll(QString());
    return lines;
}

ControllerPane::ControllerPane(DevelopmentHost* host)
    : host(host), opened(host->controller().table()),
      table(new FilteredTable(&rows, "Answers of the simulated controller")), problem(new QLabel)
{
    rows.setHorizontalHeaderLabels({"Command", "Answer"});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->addAction("&Paste", QKeySequence::Paste, [this] { change(QApplication::clipboard()->text()); });
    table->addAction("&Delete", QKeySequence::Delete, [this] { removeRows(); });
    problem->setTextFormat(Qt::PlainText);
    problem->setWordWrap(true);
    auto* layout = new QFormLayout(this);
    layout->addRow("Fi&lter", table->filter());
    layout->addRow(table);
    layout->addRow(problem);
    // A double click or Return anywhere in a row edits its answer.
    connect(table, &QTableView::activated, table,
            [this](const QModelIndex& index) { table->edit(index.siblingAtColumn(AnswerColumn)); });
    connect(&rows, &QStandardItemModel::itemChanged, this, [this](QStandardItem* item) {
        const QString line = item->data(FilteredTable::lineRole).toString();
        const QString answer = item->text();
        if (item->column() != AnswerColumn || answer == cellOf(line, AnswerColumn))
            return;
        item->setText(cellOf(line, AnswerColumn)); // until the change is accepted
        change(cellOf(line, CommandColumn) + " = " + answer);
    });
    refreshing.setSingleShot(true);
    connect(&refreshing, &QTimer::timeout, this, &ControllerPane::refresh);
    connect(&host->controller(), &SimulatedController::changed, this, [this] { refreshing.start(); });
    connect(&host->channel(), &ControllerChannel::executed, this, [this, host](const CommandRecord& record) {
        if (!traitsOf(record.text()).beginsOpening)
            return;
        opened = host->controller().table();
        refreshing.start();
    });
    refresh();
}

/** Changes the controller by \a text, lines of a controller file. A wrong line leaves the controller unchanged. */
void ControllerPane::change(const QString& text)
{
    ControllerTable changed = host->controller().table();
    QString reason = changeTable(&changed, text);
    if (reason.isEmpty())
        reason = host->changeController(changed);
    problem->setText(reason);
}

/** Removes the selected rows from the controller, but not protocol and model. */
void ControllerPane::removeRows()
{
    ControllerTable changed = host->controller().table();
    QSet<QByteArray> commands;
    const QModelIndexList selected = table->selectionModel()->selectedRows();
    for (const QModelIndex& row : selected)
        commands.insert(unescaped(cellOf(row.data(FilteredTable::lineRole).toString(), CommandColumn)));
    changed.remove(commands);
    problem->setText(host->changeController(changed));
}

void ControllerPane::refresh()
{
    const QStringList lines = linesOf(host->controller().table());
    QSet<QString> unchanged;
    const QStringList before = linesOf(opened);
    for (const QString& line : before)
        unchanged.insert(line);
    rows.setRowCount(lines.size());
    for (int row = 0; row < lines.size(); ++row)
        showLine(row, lines.at(row), !unchanged.contains(lines.at(row)));
}

void ControllerPane::showLine(int row, const QString& line, bool isChanged)
{
    const QStandardItem* const present = rows.item(row);
    if (present && present->data(FilteredTable::lineRole) == line && present->font().bold() == isChanged)
        return;
    QFont font;
    font.setBold(isChanged);
    for (const int column : {CommandColumn, AnswerColumn}) {
        auto* item = new QStandardItem(cellOf(line, column));
        item->setToolTip(FilteredTable::toolTip(item->text()));
        item->setText(item->text() + (isChanged && column == CommandColumn ? " *" : ""));
        item->setFont(font);
        item->setData(line, FilteredTable::lineRole);
        rows.setItem(row, column, item);
    }
}
