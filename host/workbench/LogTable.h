#pragma once

#include <QTableView>

class DevelopmentHost;

/** A table of log rows: whole rows are selected and copied, nothing is edited, and Tab leaves it. */
class LogTable : public QTableView
{
    Q_OBJECT

public:
    /** A screen reader says \a accessibleName. Does not own the host. */
    LogTable(DevelopmentHost* host, const QString& objectName, const QString& accessibleName);

    /**
     * Names host, module, controller and time, then the columns, then the rows shown, with tabs between the cells. If
     * \a ofSelection, the selected ones, unless none is.
     */
    QString text(bool ofSelection) const;
    /** Copies such a text of the selection. */
    void copy() const;

private:
    DevelopmentHost* host;
};
