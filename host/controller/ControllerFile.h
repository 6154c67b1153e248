#pragma once

#include "ControllerTable.h"

#include <QStringList>

/** A controller under the name by which it was chosen: the name of a named one, or of a file. */
struct NamedController
{
    QString name;
    ControllerTable table;
};

/**
 * Reads the controller \a wanted, a name, a controller file or a recording. Returns one line with file, line and fault,
 * and \a controller is unchanged, or an empty string on success.
 */
QString readController(const QString& wanted, NamedController* controller);

/** Reads the named controllers that have a description, by name. Returns like readController(). */
QString readNamedControllers(QVector<NamedController>* controllers);

/**
 * Reads the table \a wanted, a name or a file, on the way from \a files: the file that named it, the file that named
 * that one, and so on. A relative path starts at the first of them. Returns like readController().
 */
QString readTable(const QString& wanted, const QStringList& files, ControllerTable* table);

/**
 * Writes \a table into \a file, in place of what it held before. Returns an error message, and \a file is unchanged, or
 * an empty string on success.
 */
QString saveController(const QString& file, const ControllerTable& table);
