#pragma once

#include <QElapsedTimer>
#include <QPair>
#include <QVector>

#include <algorithm>

/** How long \a work takes, in microseconds. */
template <typename Work>
double microsecondsOf(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1000.0;
}

inline double median(QVector<double> values)
{
    auto* const middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** The medians of both in microseconds; they take turns, and in turn go first, so that both meet the same machine. */
template <typename Prepare, typename First, typename Second>
QPair<double, double> interleaved(int rounds, Prepare prepare, First first, Second second)
{
    QVector<double> firsts;
    QVector<double> seconds;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        if (round % 2 == 0)
            firsts.append(microsecondsOf(first));
        seconds.append(microsecondsOf(second));
        if (round % 2 != 0)
            firsts.append(microsecondsOf(first));
    }
    return {median(firsts), median(seconds)};
}
