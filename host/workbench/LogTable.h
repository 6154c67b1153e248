#pragma once

#include <QTableView>

/** A table of log rows: whole rows are selected, nothing is edited, and Tab leaves it. */
class LogTable : public QTableView
{
    Q_OBJECT

public:
    /** A screen reader says \a accessibleName. */
    LogTable(const QString& objectName, const QString& accessibleName);
};
