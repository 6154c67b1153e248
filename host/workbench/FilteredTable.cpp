#include "FilteredTable.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>

#include <algorithm>

static constexpr int rowPadding = 6; // pixels

FilteredTable::FilteredTable(QAbstractItemModel* rows, const QString& name) : filterText(new QLineEdit)
{
    shown.setFilterRole(lineRole);
    shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    shown.setSourceModel(rows);
    filterText->setClearButtonEnabled(true);
    connect(filterText, &QLineEdit::textChanged, &shown, &QSortFilterProxyModel::setFilterFixedString);
    setModel(&shown);
    setAccessibleName(name);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction("&Copy", QKeySequence::Copy, [this] { copy(); });
}

void FilteredTable::addAction(const QString& text, QKeySequence::StandardKey key, const std::function<void()>& slot)
{
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    QTableView::addAction(action);
}

QModelIndexList FilteredTable::chosenRows() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    if (!rows.isEmpty())
        return rows;
    for (int row = 0; row < shown.rowCount(); ++row)
        rows.append(shown.index(row, 0));
    return rows;
}

void FilteredTable::copy() const
{
    QStringList lines;
    const QModelIndexList rows = chosenRows();
    for (const QModelIndex& row : rows)
        lines.append(row.data(lineRole).toString() + '\n');
    QApplication::clipboard()->setText(lines.join(QString()));
}

QString FilteredTable::toolTip(const QString& text)
{
    return text.isEmpty() ? QString() : "<p>" + text.toHtmlEscaped() + "</p>"; // Only rich text is wrapped.
}
