#pragma once

#include "BackendVersions.h"
#include "BareDialog.h"
#include "ModuleLoader.h"
#include "WorkloadChannel.h"

#include <QWidget>

#include <functional>
#include <memory>

/** The module's dialog and the bare one, for one workload. */
class Comparison
{
public:
    using Steps = std::function<void()>;

    explicit Comparison(const Workload& workload);

    /** Ends both dialogs, so that they can be constructed anew. */
    void destruct();
    void constructModule();
    void constructBare();

    /** Fills and opens the module's dialog and, once it is up, takes \a inside and ends it. */
    void openModule(const Steps& inside = nullptr) const;
    void openBare(const Steps& inside = nullptr) const;

    /** Runs one of the slots of the module's dialog. */
    void call(const char* slot) const;

    /** How many commands \a steps send. */
    int commandsOf(const Steps& steps) const;

    /** Why the two cannot be compared: a line that both show differently, a picture; empty when they are the same. */
    QString difference() const;

    WorkloadChannel channel;
    QDialog* module = nullptr;

private:
    BackendVersions versions;
    QWidget parent;

public:
    std::unique_ptr<BareDialog> bare; // its parent's child, so it goes first

private:
    ModuleLoader loader;
};
