#pragma once

#include "VersionInfo.h"

#include <QMetaType>
#include <QString>

/**
 * The host's record of the controller side: system versions, protocol version and controller model.
 *
 * The host owns the one record and hands a pointer to it to every module ("BackendVersions"). Modules read it live
 * on the GUI thread and never change it; the host may assign a new record to it whenever no module dialog is open,
 * and keeps it alive until ModuleInterface::exit_module() has returned.
 */
class BackendVersions
{
public:
    BackendVersions(const VersionInfo& sysPt, const VersionInfo& prot, const VersionInfo& sysCt, const QString& mod)
        : sysPt(sysPt), prot(prot), sysCt(sysCt), mod(mod)
    {}

    const VersionInfo& systemPt() const { return sysPt; }
    const VersionInfo& systemCt() const { return sysCt; }

    /** The version of the controller's command protocol; it decides what a module may ask. */
    const VersionInfo& protocol() const { return prot; }

    /** The controller's model text, such as "QUILLSTONE 3". */
    const QString& hubModel() const { return mod; }

private:
    VersionInfo sysPt;
    VersionInfo prot;
    VersionInfo sysCt;
    QString mod;
};

Q_DECLARE_METATYPE(BackendVersions*)
