#pragma once

#include <QSortFilterProxyModel>
#include <QTableView>

#include <functional>

class QLineEdit;

/** A table of texts with a filter, which a pane places. Its context menu copies the selected rows, or all shown. */
class FilteredTable : public QTableView
{
    Q_OBJECT

public:
    /** The first item of each row has the row in one line, which the filter searches and Copy copies. */
    static constexpr int lineRole = Qt::UserRole;

    /** Does not own \a rows. A screen reader says \a name. */
    FilteredTable(QAbstractItemModel* rows, const QString& name);

    QLineEdit* filter() const { return filterText; }
    /** Adds an action to the context menu. */
    void addAction(const QString& text, QKeySequence::StandardKey key, const std::function<void()>& slot);
    /** Returns the first cells of the selected rows, or of all rows shown if none is selected, from top to bottom. */
    QModelIndexList chosenRows() const;
    void copy() const;

    /** Returns a tool tip that shows \a text as it is, in lines of a readable length. */
    static QString toolTip(const QString& text);

private:
    QSortFilterProxyModel shown;
    QLineEdit* filterText;
};
