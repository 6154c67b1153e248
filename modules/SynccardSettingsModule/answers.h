#pragma once

#include <QString>
#include <QtMath>

#include <algorithm>

/** A buffer of \a Size characters, the terminator included, for one text answer of the command channel. */
template <int Size>
class Answer
{
public:
    /** The buffer, to hand to the channel; it stays this object's. */
    char* buffer() { return characters; }

    /** The answer as sent: the controller's texts are Latin-1. */
    QString text() const { return latin1(); }

    /** The text between the first and the second double quote, or behind the only one; empty without any. */
    QString quoted() const
    {
        const char* const end = characters + length();
        const char* const open = std::find(static_cast<const char*>(characters), end, '"');
        return open == end ? QString() : between(open + 1, std::find(open + 1, end, '"'));
    }

    /** The white-space separated word at \a index, counted from 0; empty when there are fewer. */
    QString word(int index) const
    {
        const auto isSpace = [](char c) { return QChar::isSpace(static_cast<uchar>(c)); };
        const char* const end = characters + length();
        const char* begin = std::find_if_not(static_cast<const char*>(characters), end, isSpace);
        for (; index > 0; --index)
            begin = std::find_if_not(std::find_if(begin, end, isSpace), end, isSpace);
        return between(begin, std::find_if(begin, end, isSpace));
    }

    /** True only when "yes" is the whole answer. */
    bool isYes() const { return latin1() == QLatin1String("yes"); }

private:
    static QString between(const char* begin, const char* end)
    {
        return QString::fromLatin1(begin, static_cast<int>(end - begin));
    }
    int length() const { return static_cast<int>(qstrnlen(characters, Size)); }
    QLatin1String latin1() const { return QLatin1String(characters, length()); }

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
