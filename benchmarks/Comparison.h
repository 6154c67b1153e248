#pragma once

#include "BackendVersions.h"
#include "BareDialog.h"
#include "ModuleLoader.h"
#include "WorkloadChannel.h"

#include <QWidget>

#include <functional>

/** Opens \a dialog by its slot, runs \a inside as soon as the dialog is open, then closes the dialog. */
void open(QDialog* dialog, const std::function<void()>& inside = nullptr);

/** Holds the module's dialog and the bare dialog, so that both can show the same workload. */
class Comparison
{
public:
    explicit Comparison(const Workload& workload);

    /** Returns the module's dialog. Constructs it if it does not exist. */
    QDialog* module() const;

    /**
     * Returns why the dialogs cannot be compared, or an empty string. The reasons: their texts or pictures differ, the
     * module reports an error, or its second opening does not read as many commands as the first one.
     */
    QString difference();

    WorkloadChannel channel;
    BackendVersions versions;
    QWidget parent; // of both dialogs
    BareDialog bare;
    ModuleLoader loader; // declared last, so that the module ends before the objects that it uses
};
