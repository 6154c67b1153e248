#pragma once

#include <QString>

/** Prints the measurements to standard output and each failed expectation to standard error. */
class Report
{
public:
    /** Prints a row of the table: both times in microseconds, their ratio, and the goal for the ratio. */
    void row(const QString& what, double module, double bare, const QString& goal);
    /** Prints a row for an operation that the bare dialog does not have. The time is in microseconds. */
    void row(const QString& what, double module);

    /** When \a condition is false, prints \a otherwise to standard error and marks the run as failed. */
    void demand(bool condition, const QString& otherwise);
    /** Whether an expectation failed; the program then ends with status 1. */
    bool hasProblem() const { return problem; }

private:
    bool problem = false;
};
