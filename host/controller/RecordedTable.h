#pragma once

#include <QStringList>

class ControllerTable;

/**
 * Makes \a table of the first connection in a recording. Each command gets its first answer. Commands that the
 * recording lacks are answered as by the controller "full". Their rows stand last. \a files are the recording and the
 * files that led to it, like those of readTable(). Returns an error message with file, line and reason, or an empty
 * string on success.
 */
QString readRecordedTable(const QStringList& files, ControllerTable* table);
