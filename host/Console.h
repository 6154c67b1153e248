#pragma once

#include <QString>

/** Prints \a line on standard output. */
void print(const QString& line);

/** Prints "PROGRAM: message" on standard error and returns the exit status 2. */
int fail(const QString& message);
