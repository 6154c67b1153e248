#pragma once

#include <QString>

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
        const QString answer = text();
        const int begin = answer.indexOf(QLatin1Char('"')) + 1;
        if (begin == 0)
            return {};
        const int end = answer.indexOf(QLatin1Char('"'), begin);
        return answer.mid(begin, end < 0 ? -1 : end - begin);
    }

    /** The word at \a index, counted from 0, words being separated by white space; empty when there are fewer words. */
    QString word(int index) const { return text().simplified().section(QLatin1Char(' '), index, index); }

    /** True only when the whole answer is "yes". */
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
