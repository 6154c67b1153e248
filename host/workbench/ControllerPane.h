#pragma once

#include "ControllerModel.h"

#include <QSortFilterProxyModel>
#include <QTableView>

class DevelopmentHost;

/** Shows and edits the table of the host's simulated controller. Does not own the host. */
class ControllerPane : public QWidget
{
    Q_OBJECT

public:
    explicit ControllerPane(DevelopmentHost* host);

private:
    void addActions();
    QVector<int> selectedRows() const;

    ControllerModel model;
    QSortFilterProxyModel filtered;
    QTableView* table;
};
