#pragma once

#include <QString>

/** A buffer for one string answer of the command channel: \a Size characters, including the terminator. */
template <int Size>
class Answer
{
public:
    /** Returns the buffer into which the channel writes the answer. This object owns the buffer. */
    char* buffer() { return characters; }

    /** Returns the whole answer. The controller sends Latin-1. */
    QString text() const { return latin1(); }

    /**
     * Returns the text between the first two double quotes. If there is only one, returns the text after it. Without
     * a quote, returns an empty string.
     */
    QString quoted() const
    {
        const QString answer = text();
        const int begin = answer.indexOf(QLatin1Char('"')) + 1;
        if (begin == 0)
            return {};
        const int end = answer.indexOf(QLatin1Char('"'), begin);
        return answer.mid(begin, end < 0 ? -1 : end - begin);
    }

    /** Returns the word at \a index, counted from 0, or an empty string. White space separates words. */
    QString word(int index) const { return text().simplified().section(QLatin1Char(' '), index, index); }

    /** Returns true only if the whole answer is "yes". */
    bool isYes() const { return latin1() == QLatin1String("yes"); }

private:
    QLatin1String latin1() const { return QLatin1String(characters, static_cast<int>(qstrnlen(characters, Size))); }

    char characters[Size] = {};
};

using TextAnswer = Answer<200>;
using OutputAnswer = Answer<100>; // to "synccard output d01", read before OK writes the output
using FlagAnswer = Answer<16>;    // to "synccard has_input_frequency", read by each poll

constexpr int maximumCount = 999;

/** Limits a count of cards, modes or channels to 0 to 999, so that a broken controller cannot freeze the desktop. */
inline int boundedCount(int count)
{
    return qBound(0, count, maximumCount);
}
