#pragma once

#include "VersionInfo.h"

#include <QMetaType>
#include <QString>

/**
 * The host's record of the controller side: system versions, protocol version and controller model.
 *
 * The host owns the record and hands a pointer to it to every module ("BackendVersions"). Modules read the record on
 * the GUI thread whenever they need it, and never change it. The host may assign new values while no module dialog is
 * open. It keeps the record alive until ModuleInterface::exit_module() has returned.
 */
class BackendVersions
{
public:
    BackendVersions(const VersionInfo& sysPt, const VersionInfo& prot, const VersionInfo& sysCt, const QString& mod)
        : sysPt(sysPt), prot(prot), sysCt(sysCt), mod(mod)
    {}

    const VersionInfo& systemPt() const { return sysPt; }
    const VersionInfo& systemCt() const { return sysCt; }

    /** Returns the version of the controller's command protocol, which decides which commands a module may send. */
    const VersionInfo& protocol() const { return prot; }

    /** Returns the controller's model, such as "QUILLSTONE 3". */
    const QString& hubModel() const { return mod; }

private:
    VersionInfo sysPt;
    VersionInfo prot;
    VersionInfo sysCt;
    QString mod;
};

Q_DECLARE_METATYPE(BackendVersions*)
