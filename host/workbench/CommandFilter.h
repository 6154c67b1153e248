#pragma once

#include "CommandModel.h"

#include <QSortFilterProxyModel>

/** The rows of the log in which a text is found, with or without the polls. Does not own the log. */
class CommandFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CommandFilter(CommandModel* log) : log(log) { setSourceModel(log); }

    void hidePolls(bool isOn)
    {
        hidesPolls = isOn;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        return !(hidesPolls && log->isPoll(row)) && QSortFilterProxyModel::filterAcceptsRow(row, parent);
    }

private:
    CommandModel* log;
    bool hidesPolls = true;
};
