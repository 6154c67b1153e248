#include "Comparison.h"
#include "Console.h"
#include "MessageFilter.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <malloc.h>
#include <memory>

namespace {

using Work = std::function<void()>;

struct Opening
{
    Workload workload;
    double goal;
};

constexpr Opening openings[] = {{{8, 8, 1}, 1.10}, {{8, 99, 1}, 1.10}, {{99, 8, 1}, 0.80}, {{99, 99, 99}, 0.90}};
constexpr Workload typical = openings[0].workload;
constexpr int rounds = 401;
constexpr double tolerance = 1.1; // a median over this multiple of its goal fails the run, because machines are noisy

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/**
 * Measures \a module and \a bare in turns and prints a row with their medians. \a prepare runs before each of them and
 * is not measured. The goal of the module is \a ratio times the median of \a bare, plus \a extra microseconds. Returns
 * 0, or another number if the module is over its goal by more than a tenth.
 */
int measure(const QString& what, double ratio, double extra, const Work& prepare, const Work& module, const Work& bare)
{
    QVector<double> moduleTimes;
    QVector<double> bareTimes;
    QElapsedTimer timer;
    for (int i = 0; i < 2 * rounds; ++i) {
        // Module, bare, bare, module: neither of them always follows the other.
        const bool isModule = i % 4 == 0 || i % 4 == 3;
        prepare();
        timer.start();
        (isModule ? module : bare)();
        (isModule ? moduleTimes : bareTimes).append(static_cast<double>(timer.nsecsElapsed()) / 1000.0);
    }
    const double moduleTime = median(moduleTimes);
    const double bareTime = median(bareTimes);
    const double goal = ratio * bareTime + extra;
    print(QString("| %1 | %2 | %3 | %4 | %5 | %6 |")
              .arg(what, QString::number(moduleTime, 'f', 2), QString::number(bareTime, 'f', 2),
                   QString::number(moduleTime / bareTime, 'f', 2),
                   extra > 0.0 ? QString("+ %1 us").arg(extra) : QString::number(ratio, 'f', 2),
                   moduleTime > goal ? "over" : "within"));
    const bool isWithin = bareTime > 0.0 && moduleTime <= tolerance * goal;
    return isWithin ? 0 : fail(what + " is over its goal by more than a tenth");
}

int measureConstruction()
{
    Comparison both(typical);
    std::unique_ptr<BareDialog> bare;
    const auto destruct = [&] {
        both.loader.module()->exit_module();
        bare.reset();
    };
    return measure(
        "construction", 1.10, 0.0, destruct, [&] { both.module(); },
        [&] { bare = std::make_unique<BareDialog>(&both.parent, typical); });
}

/**
 * Compares the content of the module's dialog and the bare dialog for each workload. Measures both if \a isTimed is
 * true. Returns 0 if nothing differs and no median is over its goal by more than a tenth.
 */
int compareOpenings(bool isTimed)
{
    int status = 0;
    for (const Opening& opening : openings) {
        Comparison both(opening.workload);
        const QString difference = both.difference();
        const QString name = "opening " + opening.workload.name();
        status += difference.isEmpty() ? 0 : fail(name + ": " + difference);
        if (isTimed)
            status += measure(
                name, opening.goal, 0.0, [] {}, [&] { open(both.module()); }, [&] { open(&both.bare); });
    }
    return status;
}

/** Measures polls. Each poll reads a different sync input from the poll before. */
int measurePolls()
{
    constexpr int polls = 500;
    constexpr double extraMicroseconds = 1.0; // per poll, because a ratio means nothing for so short a time
    Comparison both(typical);
    const auto pollModule = [&] {
        for (int i = 0; i < polls; ++i) {
            both.channel.inputFrequency = i % 2 == 0 ? "ttl 120.000" : "video 59.940";
            QMetaObject::invokeMethod(both.module(), "poll_input_frequency");
        }
    };
    const auto showInput = [&] {
        for (int i = 0; i < polls; ++i) {
            both.bare.label_inputSource->setText(i % 2 == 0 ? QStringLiteral("ttl") : QStringLiteral("video"));
            both.bare.label_inputFrequency->setText(i % 2 == 0 ? QStringLiteral("120.000") : QStringLiteral("59.940"));
        }
    };
    int status = 0;
    open(both.module(), [&] {
        both.bare.show();
        status = measure(
            QString("%1 polls").arg(polls), 1.0, polls * extraMicroseconds, [] {}, pollModule, showInput);
    });
    return status;
}

/** Returns the bytes of heap in use after carrying out every deleteLater(). */
qint64 heapInUse()
{
    QApplication::sendPostedEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return static_cast<qint64>(mallinfo2().uordblks);
}

/** Fails if openings change the heap in use after the allocator has settled. Returns like measure(). */
int measureHeap()
{
    constexpr int warmUp = 3000;
    constexpr int measured = 5000;
    const Comparison both({8, 8, 2});
    const auto openOften = [&both](int times) {
        for (int i = 0; i < times; ++i)
            open(both.module());
    };
    openOften(warmUp);
    const qint64 before = heapInUse();
    openOften(measured);
    const qint64 growth = heapInUse() - before;
    print(QString("after %1 openings: %2 bytes of heap more than before").arg(measured).arg(growth));
    return growth == 0 ? 0 : fail("the heap has changed");
}

} // namespace

int main(int argc, char* argv[])
{
    takeWarnings([](const QString& warning) { fail(warning); });
    const QApplication application(argc, argv);
    const QString what = QApplication::arguments().value(1);
    int status = 0;
    if (what == "compare") {
        status = compareOpenings(false);
    } else if (what == "speed") {
        print("| microseconds, medians | module | bare | ratio | goal | |\n|---|---|---|---|---|---|");
        status = measureConstruction() + compareOpenings(true) + measurePolls();
    } else if (what == "heap") {
        status = measureHeap();
    } else {
        return fail("an argument is expected: compare, speed or heap");
    }
    return status > 0 ? 1 : 0;
}
