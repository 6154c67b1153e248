#pragma once

#include "CommandModel.h"
#include "ControllerModel.h"
#include "ReportModel.h"

#include <QSortFilterProxyModel>
#include <QWidget>

class DevelopmentHost;
class QLabel;
class QTableView;

/**
 * The window beside the host's main window: the commands and how to break them, the error reports, and the simulated
 * controller's state. It has no parent and stays usable while a module's dialog is open. Does not own the host.
 */
class Workbench : public QWidget
{
    Q_OBJECT

public:
    explicit Workbench(DevelopmentHost* host);

public slots:
    /** Says \a text in the window's last line. */
    void say(const QString& text);

private:
    QWidget* createCommands();
    QWidget* createFaults();
    QWidget* createReports();
    QWidget* createController();
    QTableView* createTable(QAbstractItemModel* model, const char* objectName, const QString& name);
    void copyCommands() const;
    void saveCommands();
    /** The commands shown, a line each with tabs between the columns. */
    QString commandsText() const;

    DevelopmentHost* host;
    CommandModel commands;
    QSortFilterProxyModel shownCommands;
    ReportModel reports;
    ControllerModel controller;
    QLabel* message;
};
