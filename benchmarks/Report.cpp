#include "Report.h"

#include "Console.h"

static constexpr double tolerance = 1.1; // a median this much over its goal fails the run: machines are noisy

void Report::header()
{
    print("| microseconds, medians | module | bare | ratio | goal | |\n|---|---|---|---|---|---|");
}

void Report::row(const QString& what, double module, double bare, double goal)
{
    row(what, module, bare, QString::number(goal, 'f', 2), module / bare / goal);
}

void Report::rowWithin(const QString& what, double module, double bare, double more)
{
    row(what, module, bare, QString("+ %1 us").arg(more), (module - bare) / more);
}

/** \a used is the part of the goal that the module took: above 1 it is over. */
void Report::row(const QString& what, double module, double bare, const QString& goal, double used)
{
    print(QString("| %1 | %2 | %3 | %4 | %5 | %6 |")
              .arg(what, QString::number(module, 'f', 2), QString::number(bare, 'f', 2),
                   QString::number(module / bare, 'f', 2), goal, used > 1.0 ? "over" : "within"));
    demand(used <= tolerance, what + " is over its goal by more than a tenth");
    demand(bare > 0.0, what + " has nothing to be compared with");
}

void Report::row(const QString& what, double module)
{
    print(QString("| %1 | %2 | | | | |").arg(what).arg(module, 0, 'f', 2));
}

void Report::demand(bool condition, const QString& otherwise)
{
    if (condition)
        return;
    fail(otherwise);
    problem = true;
}
