#include "Report.h"

#include "Console.h"

void Report::row(const QString& what, double module, double bare, const QString& goal)
{
    print(QString("| %1 | %2 | %3 | %4 | %5 |")
              .arg(what)
              .arg(module, 0, 'f', 2)
              .arg(bare, 0, 'f', 2)
              .arg(module / bare, 0, 'f', 2)
              .arg(goal));
}

void Report::row(const QString& what, double module)
{
    print(QString("| %1 | %2 | | | |").arg(what).arg(module, 0, 'f', 2));
}

void Report::demand(bool condition, const QString& otherwise)
{
    if (condition)
        return;
    fail(otherwise);
    problem = true;
}
