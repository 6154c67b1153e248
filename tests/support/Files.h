#pragma once

#include <QString>

/**
 * Adds a row for each "left -> right" in a file of tests/data, for a test with the parameters "left" and "right". A row
 * continues in lines that start with two blanks.
 */
void addRows(const char* name);

/** Adds a row for each text in a file of tests/data: "= right", the expected message, then the lines of "left". */
void addTexts(const char* name);

/** Returns the whole file. Ends the program if the file cannot be read. */
QByteArray readFile(const QString& name);

/** Writes \a text into \a file. Fails the test if this is impossible. */
void writeFile(const QString& file, const QByteArray& text);
