#pragma once

#include <QStringList>

class ControllerTable;

/**
 * Fills \a table from the first connection in a recording. Each command gets its first answer. Commands that the
 * recording lacks get the answers of the controller "full", in the last rows. \a files are the recording and the files
 * that led to it, as in readTable(). Returns an error message with file, line and reason, or an empty string on
 * success.
 */
QString readRecordedTable(const QStringList& files, ControllerTable* table);
