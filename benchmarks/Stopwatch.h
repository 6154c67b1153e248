#pragma once

#include <QElapsedTimer>
#include <QPair>
#include <QVector>

#include <algorithm>

/** Runs \a work and returns how long it takes, in microseconds. */
template <typename Work>
double microsecondsOf(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1000.0;
}

/** The middle one of \a values, of which there must be at least one. */
inline double median(QVector<double> values)
{
    auto* const middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/**
 * The medians of \a first and \a second in microseconds. The two take turns, and each one goes first in every other
 * round, so that both run under the same conditions. \a prepare runs before each round and is not measured.
 */
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
