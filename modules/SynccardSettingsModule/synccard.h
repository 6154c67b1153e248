#pragma once

#include "channel.h"

#include <QList>
#include <QString>

/**
 * The direct settings of one synccard: a record of values. It owns its channels and cannot be copied.
 * Cards and channels count from 0 here and from 1 in commands: card 0 is "d01", channel 0 is "ch01".
 */
class Synccard
{
public:
    explicit Synccard(int index) : iId(index) {}
    ~Synccard()
    {
        while (!channels.isEmpty())
            delete channels.takeFirst();
    }
    Q_DISABLE_COPY(Synccard)

    int id() const { return iId; }

    /** Returns the identifier of the active mode ("synccard active_mode"), or "direct settings". */
    QString activeMode() const { return sActiveMode; }

    /** Returns the sync source's keyword, such as "internal" ("synccard source"). */
    QString activeSource() const { return sActiveSource; }

    /** Returns the internal frequency in Hz ("synccard internal_frequency"). */
    double frequency() const { return dFrequency; }

    /** Returns the divisor of an external sync signal ("synccard external_divisor"). */
    int externalDivisor() const { return iExternalDivisor; }

    int channelsCount() const { return channels.size(); }

    /** Returns the channel at \a index, or null if \a index is outside 0 to channelsCount() - 1. The card owns it. */
    Channel* channel(int index) const { return channels.value(index, nullptr); }

    void setActiveMode(const QString& mode) { sActiveMode = mode; }
    void setActiveSource(const QString& source) { sActiveSource = source; }
    void setFrequency(double frequency) { dFrequency = frequency; }
    void setExternalDivisor(int divisor) { iExternalDivisor = divisor; }

    /** Appends \a channel, which must be allocated with new, and takes ownership. */
    void addChannel(Channel* channel) { channels.append(channel); }

private:
    int iId;
    QString sActiveMode = QLatin1String("");
    QString sActiveSource = QLatin1String("");
    double dFrequency = 60.0;
    int iExternalDivisor = 1;
    QList<Channel*> channels;
};
