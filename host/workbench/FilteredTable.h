#pragma once

#include <QSortFilterProxyModel>
#include <QTableView>

#include <functional>

class QLineEdit;

/** A table with a filter field, which a pane places. The context menu copies the selected rows, or all rows shown. */
class FilteredTable : public QTableView
{
    Q_OBJECT

public:
    /** The role for the whole row as one line, in a row's first item. The filter searches it, and Copy copies it. */
    static constexpr int lineRole = Qt::UserRole;

    /** Does not own \a rows. A screen reader reads \a name aloud. */
    FilteredTable(QAbstractItemModel* rows, const QString& name);

    QLineEdit* filter() const { return filterText; }
    /** Adds an action to the context menu. */
    void addAction(const QString& text, QKeySequence::StandardKey key, const std::function<void()>& slot);
    /** Returns the first cells of the selected rows, or of all rows shown without a selection, from top to bottom. */
    QModelIndexList chosenRows() const;
    void copy() const;

    /** Returns a tool tip that shows \a text as it is, in lines of a readable length. */
    static QString toolTip(const QString& text);

private:
    QSortFilterProxyModel shown;
    QLineEdit* filterText;
};
