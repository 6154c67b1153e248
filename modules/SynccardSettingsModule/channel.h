#pragma once

#include <QString>

/** One output channel of a synccard: a record of values, owned by its Synccard. Lives on the GUI thread. */
class Channel
{
public:
    /** The user edits delays in microseconds. Commands carry milliseconds. */
    static constexpr double microsecondsPerMillisecond = 1000.0;

    Channel() = default;

    /** Returns the output delay in milliseconds ("synccard output_delay"). */
    double delay() const { return dDelay; }

    /** Returns true if the output stays active while the system is idle ("synccard output_during_idle"). */
    bool activeDuringIdle() const { return bActiveDuringIdle; }

    /** Sets the delay in milliseconds, without a range check. */
    void setDelay(double delay) { dDelay = delay; }

    /** Sets the delay from its cell: microseconds with a decimal point. Sets 0 if \a text is not a number. */
    void setDelay(const QString& text)
    {
        bool isNumber = false;
        const double microseconds = text.toDouble(&isNumber);
        dDelay = isNumber ? microseconds / microsecondsPerMillisecond : 0.0;
    }

    void setActiveDuringIdle(bool active) { bActiveDuringIdle = active; }

private:
    double dDelay = 0.0;
    bool bActiveDuringIdle = false;
};
