#pragma once

#include "ControllerState.h"
#include "DevelopmentHost.h"
#include "DialogUser.h"

#include <QString>
#include <QTimer>

#include <memory>

/**
 * Walks through the dialog without a person: changes settings, takes changes back, meets a legacy, a locked and a
 * card-less controller. Prints every command with answer and result, and what the dialog shows, and compares the
 * controller after each visit with what the visit must leave. Needs a QApplication.
 */
class Tour
{
public:
    /** Pictures go into \a pictureFolder, if it is not empty. */
    Tour(const HostSetup& setup, const QString& pictureFolder);

    /** Starts the host. False when it cannot; problem() says why. */
    bool start();

    /** The whole tour; stops at the first thing amiss, which problem() names. */
    bool run();
    QString problem() const { return firstProblem; }

private:
    void raiseFrequency();
    void takeSourceBack();
    void editChannels();
    void choosePredefinedMode();
    void meetLegacyController();
    void meetLockedController();
    void meetControllerWithoutSynccard();

    void restart(const ControllerState& state);
    void meetDialog();
    void visit(const QString& title, const DialogUser::Steps& steps);
    void waitForPoll();
    void closeBox();
    void look(const QString& name);
    void takePicture(QWidget* widget, const QString& name);
    void demand(bool condition, const QString& what);
    bool hasFailed() const { return !firstProblem.isEmpty(); }

    ControllerState initial;
    ControllerState expected;
    QString pictureFolder;
    QString firstProblem;
    DevelopmentHost host;
    std::unique_ptr<DialogUser> user;
    QTimer boxPoller;
};
