#include "LogTable.h"

#include "DevelopmentHost.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QHeaderView>

static constexpr int rowPadding = 6; // pixels

LogTable::LogTable(DevelopmentHost* host, const QString& objectName, const QString& accessibleName) : host(host)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    auto* copyAction = new QAction(tr("&Copy"), this);
    copyAction->setShortcuts(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &LogTable::copy);
    addAction(copyAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

QString LogTable::text(bool ofSelection) const
{
    const bool isAll = !ofSelection || !selectionModel()->hasSelection();
    QStringList lines = {"# " + host->identity() + ", " + QDateTime::currentDateTime().toString(Qt::ISODate)};
    for (int row = -1; row < model()->rowCount(); ++row) {
        if (row >= 0 && !isAll && !selectionModel()->isRowSelected(row, {}))
            continue;
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            const QModelIndex index = model()->index(row, column);
            const QVariant cell = row < 0 ? model()->headerData(column, Qt::Horizontal) : index.data();
            // The controller's texts come as they are.
            cells.append(cell.toString().replace('\t', ' ').replace('\n', ' ').replace('\r', ' '));
        }
        lines.append(cells.join('\t'));
    }
    return lines.join('\n') + '\n';
}

void LogTable::copy() const
{
    QApplication::clipboard()->setText(text(true));
}
