#include "ControllerPane.h"

#include "DevelopmentHost.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

static constexpr int commandColumnWidth = 380; // pixels

ControllerPane::ControllerPane(DevelopmentHost* host) : model(host), table(new QTableView)
{
    filtered.setSourceModel(&model);
    filtered.setFilterKeyColumn(-1);
    filtered.setFilterCaseSensitivity(Qt::CaseInsensitive);
    table->setModel(&filtered);
    table->setObjectName("controller");
    table->setAccessibleName("Answers of the simulated controller");
    table->setSelectionBehavior(QTableView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setEditTriggers(QTableView::NoEditTriggers);
    table->setColumnWidth(ControllerModel::CommandColumn, commandColumnWidth);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    // A double click or Return anywhere in a row edits its answer.
    connect(table, &QTableView::activated, this,
            [this](const QModelIndex& index) { table->edit(index.siblingAtColumn(ControllerModel::AnswerColumn)); });
    addActions();

    auto* filter = new QLineEdit;
    connect(filter, &QLineEdit::textChanged, &filtered, &QSortFilterProxyModel::setFilterFixedString);
    auto* message = new QLabel;
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    connect(&model, &ControllerModel::edited, message, &QLabel::setText);
    auto* layout = new QFormLayout(this);
    layout->addRow("Fi&lter", filter);
    layout->addRow(table);
    layout->addRow(message);
    connect(&host->channel(), &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        if (traitsOf(record.text()).beginsOpening)
            model.markFromNow();
    });
}

void ControllerPane::addActions()
{
    const auto add = [this](const QString& text, QKeySequence::StandardKey key, auto slot) {
        auto* action = new QAction(text, this);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        table->addAction(action);
    };
    add("&Copy", QKeySequence::Copy, [this] {
        QStringList lines;
        for (const int row : selectedRows())
            lines.append(model.lineAt(row));
        QApplication::clipboard()->setText(lines.join('\n'));
    });
    add("&Paste", QKeySequence::Paste, [this] { model.change(QApplication::clipboard()->text()); });
    add("&Delete", QKeySequence::Delete, [this] { model.remove(selectedRows()); });
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

/** Returns the selected rows of the model, not of the filtered view. */
QVector<int> ControllerPane::selectedRows() const
{
    QVector<int> rows;
    const QModelIndexList selected = table->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        rows.append(filtered.mapToSource(index).row());
    return rows;
}
