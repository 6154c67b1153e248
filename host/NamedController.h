#pragma once

#include "ControllerTable.h"

/** A controller and the name by which it was chosen: the name of a named controller, or of a file. */
struct NamedController
{
    QString name;
    ControllerTable table;
};

/**
 * Reads the controller \a wanted: a name, a controller file or a recording. Returns an error message with file, line
 * and fault, or an empty string on success. An error leaves \a controller unchanged.
 */
QString readController(const QString& wanted, NamedController* controller);

/**
 * Reads the named controllers that have a description, sorted by name. Returns an error message, or an empty string on
 * success.
 */
QString readNamedControllers(QVector<NamedController>* controllers);
