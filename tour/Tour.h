#pragma once

#include "ControllerState.h"
#include "DevelopmentHost.h"
#include "DialogUser.h"
#include "Workbench.h"

#include <QString>
#include <QTimer>

#include <memory>

/**
 * Visits the dialog like a person: changes settings, cancels changes, meets a legacy controller, a locked one and one
 * without synccard. Leaves out, with the reason, the visits for which the controller leaves no room. Prints every
 * command with its answer, and what the dialog shows. After each visit it compares the state of the controller with the
 * expected one. Needs a QApplication.
 */
class Tour
{
public:
    /** Saves pictures into \a pictureFolder unless that is empty. */
    Tour(const HostSetup& setup, const QString& pictureFolder);

    /**
     * Starts the host and makes the visits, up to the first thing amiss, which it prints to standard error. Returns
     * the exit status: 0, 1 after something amiss, 2 when the host cannot start.
     */
    int run();

private:
    // The visits: Tour_visits.cpp
    void raiseFrequency();
    void takeSourceBack();
    void editChannels();
    void choosePredefinedMode();
    void meetLegacyController();
    void meetLockedController();
    void meetControllerWithoutSynccard();

    // The steps that visits share: Tour.cpp
    void restart(const ControllerState& state);
    void visit(const QString& title, const QString& obstacle, const DialogUser::Steps& steps);
    void chooseMode();
    void compareState(const QString& title);
    void waitForPoll();
    void closeBox();
    void look(const QString& name);
    void lookAtWorkbench();
    void savePicture(const QString& name, const QPixmap& picture);
    /** Keeps the first thing amiss; false once there is one. */
    bool demand(bool condition, const QString& what);
    bool hasFailed() const { return !firstProblem.isEmpty(); }

    ControllerState initial;
    ControllerState expected;
    QString pictureFolder;
    QString firstProblem;
    DevelopmentHost host;
    Workbench workbench; // for its picture; it is not shown
    std::unique_ptr<DialogUser> user;
    QTimer boxPoller;
};
