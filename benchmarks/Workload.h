#pragma once

#include <QString>

/** How much a controller offers, and what it says of each: both sides of a comparison show these values. */
struct Workload
{
    int channels;
    int modes;
    int cards;

    QString name() const { return QString("%1/%2/%3").arg(channels).arg(modes).arg(cards); }
    /** What the opening of the dialog sends at protocol 1.23. */
    int openingCommands() const { return 20 + 2 * (channels + modes + cards); }
    /** What OK sends after a change of the frequency. */
    int savingCommands() const { return 6 + 2 * channels; }
};

constexpr int sourceChangeCommands = 7; // to an external source
constexpr int takingBackCommands = 3;   // Cancel after that
constexpr int pollCommands = 2;

constexpr double frequencyHz = 120.0;
constexpr double maximumFrequencyHz = 500.0;
constexpr int divisor = 3;
constexpr int maximumDivisor = 100;
constexpr double maximumDelayMilliseconds = 300.0;

/** The delay of \a channel, counted from 1, in milliseconds. */
constexpr double delayMilliseconds(int channel)
{
    return 0.25 * channel;
}

/** Every second channel stays active while the system is idle. */
constexpr bool isActiveDuringIdle(int channel)
{
    return channel % 2 == 0;
}
