#pragma once

#include "HostSetup.h"

#include <QVector>

/** The folder of the named controllers, a file NAME.json each. Needs a QCoreApplication. */
QString controllerFolder();

/** Reads the controller \a wanted, the name of a named one or a file, into \a setup. Returns why it cannot, or nothing.
 */
QString readController(const QString& wanted, HostSetup* setup);

/** Reads all named controllers, by name. Returns which of their files is broken, or nothing. */
QString readNamedControllers(QVector<HostSetup>* controllers);
