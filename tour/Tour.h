#pragma once

#include "ControllerState.h"
#include "DevelopmentHost.h"
#include "DialogUser.h"

#include <QString>

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
    Tour(const ControllerState& state, const QString& pluginFile, const QString& pictureFolder);

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

    void startHost(const ControllerState& state);
    void visit(const QString& title, const DialogUser::Steps& steps);
    void waitForPoll();
    void look(const QString& name);
    void takePicture(QWidget* widget, const QString& name);
    void demand(bool condition, const QString& what);
    bool hasFailed() const { return !firstProblem.isEmpty(); }

    ControllerState initial;
    ControllerState expected;
    QString pluginFile;
    QString pictureFolder;
    QString firstProblem;
    std::unique_ptr<DevelopmentHost> host;
    std::unique_ptr<DialogUser> user;
};
