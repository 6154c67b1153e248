#pragma once

#include <QString>

/** How many channels, modes and cards a controller offers. Both dialogs of a comparison show the same workload. */
struct Workload
{
    int channels;
    int modes;
    int cards;

    QString name() const { return QString("%1/%2/%3").arg(channels).arg(modes).arg(cards); }
    /** The number of commands that an opening sends at protocol 1.23. */
    int openingCommands() const { return 20 + 2 * (channels + modes + cards); }
    /** The number of commands that OK sends after a change of the frequency. */
    int savingCommands() const { return 6 + 2 * channels; }
};

constexpr int sourceChangeCommands = 7; // when the user selects an external source
constexpr int takingBackCommands = 3;   // when Cancel takes that source back
constexpr int pollCommands = 2;

// The values that the controller answers and both dialogs show.
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
