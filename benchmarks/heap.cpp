#include "heap.h"

#include "Comparison.h"
#include "Console.h"
#include "Report.h"

#include <QApplication>

#include <malloc.h>

namespace {

constexpr int warmUpCycles = 3;

/** The bytes of heap in use after every deleteLater() has been carried out. */
qint64 heapInUse()
{
    QApplication::sendPostedEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return static_cast<qint64>(mallinfo2().uordblks);
}

/** Opens the dialog for each opening of \a cycle, then once more for its polls. */
void openAndPoll(Comparison* both, const HeapCycle& cycle)
{
    for (int i = 0; i < cycle.openings; ++i)
        both->openModule();
    both->openModule([both, &cycle] {
        for (int i = 0; i < cycle.polls; ++i)
            both->call("poll_input_frequency");
    });
}

void repeat(Comparison* both, int cycles, const HeapCycle& cycle)
{
    for (int i = 0; i < cycles; ++i)
        openAndPoll(both, cycle);
}

} // namespace

void reportHeap(Report* report, int cycles, const HeapCycle& cycle)
{
    Comparison both({8, 8, 2});
    both.channel.alternates = true;
    repeat(&both, warmUpCycles, cycle);
    const qint64 heap = heapInUse();
    const int widgets = QApplication::allWidgets().size();
    repeat(&both, cycles, cycle);
    const qint64 growth = heapInUse() - heap;
    const int moreWidgets = QApplication::allWidgets().size() - widgets;
    print(QString("after %1 openings and %2 polls: %3 bytes of heap and %4 widgets more than before")
              .arg(cycles * cycle.openings)
              .arg(cycles * cycle.polls)
              .arg(growth)
              .arg(moreWidgets));
    report->demand(growth == 0 && moreWidgets == 0, "the heap or the number of widgets has changed");
}
