#pragma once

#include <QString>

/** What the measuring says: a table on standard output, and on standard error what must not be. */
class Report
{
public:
    void line(const QString& text);
    /** One row of the table: both times in microseconds, their ratio, and the goal for it. */
    void row(const QString& what, double module, double bare, const QString& goal);
    /** A row for what has no bare counterpart. */
    void row(const QString& what, double module);

    /** Without \a condition the program ends with status 1. */
    void demand(bool condition, const QString& otherwise);
    bool hasProblem() const { return problem; }

private:
    bool problem = false;
};
