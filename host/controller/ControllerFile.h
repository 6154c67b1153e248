#pragma once

#include "ControllerTable.h"

#include <QStringList>

/** Returns the directory of the named controllers. */
QString controllerDirectory();

/**
 * Reads the table \a wanted: a name, a controller file or a recording. \a files are the file that named it, the file
 * that named that one, and so on; a relative path starts at the first of them. Returns an error message with file, line
 * and fault, or an empty string on success.
 */
QString readTable(const QString& wanted, const QStringList& files, ControllerTable* table);

/**
 * Writes \a table into \a file, in place of what it held before. Returns an error message, and \a file is unchanged, or
 * an empty string on success.
 */
QString saveTable(const QString& file, const ControllerTable& table);
