#include "HostOptions.h"
#include "Report.h"
#include "heap.h"
#include "speed.h"

#include <QApplication>

namespace {

/** The offscreen platform says so of every window of fixed size. */
void dropSizeHints(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    if (message != "This plugin does not support propagateSizeHints()")
        HostOptions::fail(message);
}

} // namespace

int main(int argc, char* argv[])
{
    qInstallMessageHandler(dropSizeHints);
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
        return HostOptions::fail("what shall be measured? speed, heap or soak is expected");
    return report.hasProblem() ? 1 : 0;
}
