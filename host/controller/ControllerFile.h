#pragma once

#include "ControllerTable.h"

#include <QStringList>

/** Returns the directory of the named controllers. */
QString controllerDirectory();

/**
 * Reads the table \a wanted: a name, a controller file or a recording. \a files are the files that led to it by "from",
 * last first. A relative path starts at the first of \a files. Returns an error message with file, line and fault, or
 * an empty string on success.
 */
QString readTable(const QString& wanted, const QStringList& files, ControllerTable* table);

/**
 * Writes \a table into \a file, in place of its earlier content. Returns an error message, or an empty string on
 * success. An error leaves \a file unchanged.
 */
QString saveTable(const QString& file, const ControllerTable& table);
