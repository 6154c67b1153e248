#pragma once

#include <QString>

/** Prints the measurements to standard output and each failed expectation to standard error. */
class Report
{
public:
    /** Begins the table. */
    void header();
    /** Prints a row: both times in microseconds, their ratio, the \a goal for the ratio, and whether it is within. */
    void row(const QString& what, double module, double bare, double goal);
    /** The same, where the module may take \a more microseconds than the bare dialog. */
    void rowWithin(const QString& what, double module, double bare, double more);
    /** Prints a row for an operation that the bare dialog does not have. The time is in microseconds. */
    void row(const QString& what, double module);

    /** When \a condition is false, prints \a otherwise to standard error and marks the run as failed. */
    void demand(bool condition, const QString& otherwise);
    /** Whether an expectation failed; the program then ends with status 1. */
    bool hasProblem() const { return problem; }

private:
    void row(const QString& what, double module, double bare, const QString& goal, double used);

    bool problem = false;
};
