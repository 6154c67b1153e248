#pragma once

#include <QString>

/**
 * Adds a row for each "left -> right" in a file of tests/data, for a test with the parameters "left" and "right". A row
 * goes on in lines that begin with two blanks.
 */
void addRows(const char* name);

/** The same from a file of small texts, each behind its message: "= right", and below it the lines of "left". */
void addTexts(const char* name);

/** The whole file; ends the program when it cannot be read. */
QByteArray readFile(const QString& name);

/** Writes \a text into \a file; fails the test when it cannot. */
void writeFile(const QString& file, const QByteArray& text);
