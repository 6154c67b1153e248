#pragma once

#include <QAction>
#include <QMainWindow>

/** The host's window with the menus. While a module's dialog is open, it blocks this window, but not the workbench. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();

    bool isMeasurementRunning() const { return measurement->isChecked(); }

signals:
    void measurementSwitched(bool isOn);
    void workbenchWanted();

protected:
    /** Ends the program, but not while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* measurement;
};
