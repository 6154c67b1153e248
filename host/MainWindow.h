#pragma once

#include <QMainWindow>

/** The development host's window with the menus. A module's dialog is modal to it and its like, not to the workbench.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();

    bool isMeasurementRunning() const;

signals:
    void measurementSwitched(bool isOn);
    void workbenchWanted();

protected:
    /** Ends the program, but not while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* measurement;
};
