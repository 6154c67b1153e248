#pragma once

#include "BackendVersions.h"
#include "BareDialog.h"
#include "ModuleLoader.h"
#include "WorkloadChannel.h"

#include <QWidget>

#include <functional>
#include <memory>

/** Holds the module's dialog and the bare dialog, so that both can show the same workload. */
class Comparison
{
public:
    using Steps = std::function<void()>;

    explicit Comparison(const Workload& workload);

    /** Deletes both dialogs. The next two functions construct them again. */
    void destruct();
    void constructModule();
    void constructBare();

    /** Opens the module's dialog, runs \a inside as soon as the dialog is open, then closes the dialog. */
    void openModule(const Steps& inside = nullptr) const;
    /** Does the same with the bare dialog, which it fills first. */
    void openBare(const Steps& inside = nullptr) const;

    /** Calls a slot of the module's dialog by its name. */
    void call(const char* slot) const;

    /** Runs \a steps and returns the number of commands that the module sends meanwhile. */
    int commandsOf(const Steps& steps) const;

    /**
     * The first reason why the dialogs cannot be compared: they show different texts, the module reports errors, or
     * their pictures differ. Empty when there is none.
     */
    QString difference() const;

    WorkloadChannel channel;
    QDialog* module = nullptr;

private:
    BackendVersions versions;
    QWidget parent;

public:
    std::unique_ptr<BareDialog> bare; // declared after its parent widget, so that it is deleted before it

private:
    ModuleLoader loader;
};
