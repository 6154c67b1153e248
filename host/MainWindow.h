#pragma once

#include <QAction>
#include <QMainWindow>

#include <functional>

class QLabel;

/** What the host is: its controller, its module, its recordings. Each text is one line for the main window. */
struct HostFacts
{
    QString controller;
    QString protocol;
    QString module;
    QString recording;
    QString recordingBrief; // empty: there is none
    QString brief;          // controller and recordings, for the titles
};

/** The host's window with the menus. While a module's dialog is open, it blocks this window, but not the workbench. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** While \a isBusy returns true the window does not close. */
    explicit MainWindow(std::function<bool()> isBusy);

    bool isMeasurementRunning() const { return measurement->isChecked(); }

    /** Adds \a menu behind those that are there, but before Help. Does not take ownership. */
    void addMenu(QMenu* menu);

    /** Shows \a facts in rows, and briefly in the title. */
    void describe(const HostFacts& facts);
    /** Shows \a text, such as why something was refused, until the next one; an empty text hides it. */
    void say(const QString& text);

signals:
    void measurementSwitched(bool isOn);
    void workbenchWanted();
    void aboutWanted();
    /** The facts have changed; \a brief is the text for titles. */
    void described(const QString& brief);

protected:
    /** Ends the program, but not while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    void createMenus();
    void createRows();

    std::function<bool()> isBusy;
    QAction* measurement = nullptr;
    QAction* help = nullptr;
    QList<QLabel*> rows;
    QLabel* notice;
    QLabel* recordingState;
    QLabel* measurementState;
};
