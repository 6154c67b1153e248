#pragma once

#include "DevelopmentHost.h"
#include "DialogUser.h"
#include "MainWindow.h"
#include "Workbench.h"

#include <QString>
#include <QTimer>

#include <memory>

/**
 * Uses the dialog like a person. Prints every command with its answer, and the dialog's content. On the controller
 * "full" it changes settings and cancels changes. Then it continues with a legacy controller, a locked one and one
 * without a synccard. After each visit it compares the controller's table with the expected one. On any other
 * controller it opens the dialog once and cancels. Needs a QApplication.
 */
class Tour
{
public:
    /** Saves pictures into \a pictureFolder unless that is empty. */
    Tour(const HostSetup& setup, const QString& pictureFolder);

    /**
     * Starts the host and makes the visits. Prints the first problem to standard error and makes no further visit.
     * Returns the exit status: 0, 1 after a problem, 2 if the host cannot start.
     */
    int run();

private:
    // The visits: Tour_visits.cpp
    void changeSettings();
    void meetOtherControllers();
    void openAndCancel();

    // The steps that visits share: Tour.cpp
    void restart(const QString& lines);
    void visit(const QString& title, const QString& change, const DialogUser::Steps& steps);
    void expect(const QString& lines);
    void compareTable(const QString& title);
    void waitForPoll();
    void closeBox();
    void look(const QString& name);
    void lookAtWorkbench();
    void savePicture(const QString& name, const QPixmap& picture);
    /** Keeps \a what as the first problem if \a condition is false. Returns false after any problem. */
    bool demand(bool condition, const QString& what);
    bool hasFailed() const { return !firstProblem.isEmpty(); }

    ControllerTable initial;
    ControllerTable expected;
    bool isFull = false; // The initial controller is "full".
    bool hasPolled = false;
    QString pictureFolder;
    QString firstProblem;
    DevelopmentHost host;
    MainWindow window;
    Workbench workbench; // only for its picture, never shown
    std::unique_ptr<DialogUser> user;
    QTimer boxPoller;
};
