#pragma once

#include "ControllerTable.h"

/** A controller under the name by which it was chosen: the name of a named one, or of a file. */
struct NamedController
{
    QString name;
    ControllerTable table;
};

/**
 * Reads the controller \a wanted, a name, a controller file or a recording. Returns an error message with file, line
 * and fault, and \a controller is unchanged, or an empty string on success.
 */
QString readController(const QString& wanted, NamedController* controller);

/** Reads the named controllers that have a description, by name. Returns like readController(). */
QString readNamedControllers(QVector<NamedController>* controllers);
