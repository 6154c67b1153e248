#include "LogTable.h"

#include <QHeaderView>

static constexpr int rowPadding = 6; // pixels

LogTable::LogTable(const QString& objectName, const QString& accessibleName)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
}
