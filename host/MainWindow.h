#pragma once

#include <QMainWindow>

struct ControllerState;
class QLabel;

/** The development host's window: the menus, what the controller is, and the newest error report, never a box. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const ControllerState& state);

public slots:
    /** Shows the report in the status bar; equal reports in a row are counted. */
    void showReport(const QString& category, const QString& systemTag, int flag, const QString& message);

protected:
    /** The window stays while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* reportLabel;
    QString newestReport;
    int reportCount = 0;
};
