#pragma once

#include <QString>
#include <QtMath>

/** A buffer of \a Size characters, the terminator included, for one text answer of the command channel. */
template <int Size>
class Answer
{
public:
    /** The buffer, to hand to the channel; it stays this object's. */
    char* buffer() { return characters; }

    /** The answer as sent: the controller's texts are Latin-1. */
    QString text() const { return QString::fromLatin1(characters, static_cast<int>(qstrnlen(characters, Size))); }

    /** True only when "yes" is the whole answer. */
    bool isYes() const { return text() == QLatin1String("yes"); }

private:
    char characters[Size] = {};
};

using TextAnswer = Answer<200>;
using OutputAnswer = Answer<100>; // "synccard output d01" before an output change
using FlagAnswer = Answer<16>;    // "synccard has_input_frequency" of a poll

/**
 * Whether a read, ended with \a result, left a usable \a value: a number that is not finite counts as not read.
 * By reference, so that the read may stand in the same call: `isRead(cm->getParameterDouble(&hz, "..."), hz)`.
 */
inline bool isRead(int result, const double& value)
{
    return result == 0 && qIsFinite(value);
}

/** A count of cards, modes or channels, 0 to 999: a broken controller must not freeze the desktop. */
inline int boundedCount(int count)
{
    return qBound(0, count, 999);
}
