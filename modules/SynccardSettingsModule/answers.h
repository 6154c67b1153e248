#pragma once

#include <QString>
#include <QtMath>

#include <algorithm>

/** A buffer of \a Size characters, the terminator included, for one text answer of the command channel. */
template <int Size>
class Answer
{
public:
    /** The buffer that the channel writes the answer into. This object owns it. */
    char* buffer() { return characters; }

    /** The whole answer. The controller sends Latin-1. */
    QString text() const { return latin1(); }

    /** The text between the first two double quotes; with only one, the text after it; with none, an empty text. */
    QString quoted() const
    {
        const char* const end = characters + length();
        const char* const open = std::find(static_cast<const char*>(characters), end, '"');
        return open == end ? QString() : between(open + 1, std::find(open + 1, end, '"'));
    }

    /** The word at \a index, counted from 0, words being separated by white space; empty when there are fewer words. */
    QString word(int index) const
    {
        const auto isSpace = [](char c) { return QChar::isSpace(static_cast<uchar>(c)); };
        const char* const end = characters + length();
        const char* begin = std::find_if_not(static_cast<const char*>(characters), end, isSpace);
        for (; index > 0; --index)
            begin = std::find_if_not(std::find_if(begin, end, isSpace), end, isSpace);
        return between(begin, std::find_if(begin, end, isSpace));
    }

    /** True only when the whole answer is "yes". */
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
using OutputAnswer = Answer<100>; // to "synccard output d01", read before OK writes the output
using FlagAnswer = Answer<16>;    // to "synccard has_input_frequency", read by each poll

/**
 * Whether a read that returned \a result succeeded with a finite \a value.
 * \a value is a reference because the call may contain the read: `isRead(cm->getParameterDouble(&hz, "..."), hz)`.
 */
inline bool isRead(int result, const double& value)
{
    return result == 0 && qIsFinite(value);
}

constexpr int maximumCount = 999;

/** Limits a count of cards, modes or channels to 0 to 999, so that a broken controller cannot freeze the desktop. */
inline int boundedCount(int count)
{
    return qBound(0, count, maximumCount);
}
