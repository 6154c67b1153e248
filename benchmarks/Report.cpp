#include "Report.h"

#include <cstdio>

void Report::line(const QString& text)
{
    static_cast<void>(std::fputs(qPrintable(text + '\n'), stdout));
    static_cast<void>(std::fflush(stdout));
}

void Report::row(const QString& what, double module, double bare, const QString& goal)
{
    line(QString("| %1 | %2 | %3 | %4 | %5 |")
             .arg(what)
             .arg(module, 0, 'f', 2)
             .arg(bare, 0, 'f', 2)
             .arg(module / bare, 0, 'f', 2)
             .arg(goal));
}

void Report::row(const QString& what, double module)
{
    line(QString("| %1 | %2 | | | |").arg(what).arg(module, 0, 'f', 2));
}

void Report::demand(bool condition, const QString& otherwise)
{
    if (condition)
        return;
    static_cast<void>(std::fputs(qPrintable("synccard-bench: " + otherwise + '\n'), stderr));
    problem = true;
}
