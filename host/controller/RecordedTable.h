#pragma once

#include <QString>

class ControllerTable;

/**
 * Makes \a table of the first connection in the recording \a file. Each command is answered as it first was, and
 * commands that the recording lacks as the controller "full" answers them, in the last rows. Returns an error message
 * with file, line and reason, or an empty string on success.
 */
QString readRecordedTable(const QString& file, ControllerTable* table);
