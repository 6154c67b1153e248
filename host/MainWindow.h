#pragma once

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>

class DevelopmentHost;

/**
 * The host's window with the menus. It names the controller, the module and the recordings. While a module's dialog is
 * open, it blocks this window, but not the workbench. Does not own the host.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** \a host has a controller and recordings, but no module yet. */
    explicit MainWindow(DevelopmentHost* host);

    bool isMeasurementRunning() const { return measurement->isChecked(); }

    /** Shows in rows, and briefly in the title, what the host is now, if it has a module. */
    void describe();
    /** Shows \a text, such as why something was refused, until the next one or the next opening. An empty text hides
     * it. */
    void say(const QString& text);
    /** Shows in the status bar what an opening or an exit of the dialog took. */
    void showStep(const QString& text) { step->setText(text); }

signals:
    void measurementSwitched(bool isOn);
    void workbenchWanted();
    /** What the host is has changed; \a brief is the text for titles. */
    void described(const QString& brief);

protected:
    /** Ends the program, but not while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    // MainWindow.cpp
    void createRows();
    void followHost();
    void growToFit();
    // MainWindow_menus.cpp
    void createHostMenu();
    void createRecordingMenu();
    void createControllerMenu();
    void createHelpMenu();
    void startRecording();
    void openController();
    void saveController();
    void about();

    DevelopmentHost* host;
    QAction* measurement = nullptr;
    QList<QLabel*> rows;
    QLabel* notice;
    QLabel* step;
    QLabel* recordingState;
    QLabel* measurementState;
    QTimer describing; // describes once, however much has changed
};
