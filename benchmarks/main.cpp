#include "Console.h"
#include "MessageFilter.h"
#include "Report.h"
#include "heap.h"
#include "speed.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    takeWarnings([](const QString& warning) { fail(warning); });
    const QApplication application(argc, argv);
    const QString what = QApplication::arguments().value(1);
    Report report;
    if (what == "speed")
        reportSpeed(&report);
    else if (what == "heap")
        reportHeap(&report, 5, {1000, 0});
    else if (what == "soak")
        reportHeap(&report, 10, {2000, 8640});
    else
        return fail("tell what to measure: speed, heap or soak");
    return report.hasProblem() ? 1 : 0;
}
