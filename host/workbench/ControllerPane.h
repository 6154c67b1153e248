#pragma once

#include "ControllerTable.h"

#include <QStandardItemModel>
#include <QTimer>
#include <QWidget>

class DevelopmentHost;
class FilteredTable;
class QLabel;

/**
 * Shows and edits the table of the host's simulated controller as a controller file writes it, from the protocol on.
 * Rows that have changed since the dialog was last opened are bold and have a star. Does not own the host.
 */
class ControllerPane : public QWidget
{
    Q_OBJECT

public:
    explicit ControllerPane(DevelopmentHost* host);

private:
    void change(const QString& text);
    void removeRows();
    void refresh();
    void showLine(int row, const QString& line, bool isChanged);

    DevelopmentHost* host;
    ControllerTable opened; // the controller's table at the last opening
    QStandardItemModel rows;
    FilteredTable* table;
    QLabel* problem;   // of the last change
    QTimer refreshing; // refreshes once after a burst of commands
};
