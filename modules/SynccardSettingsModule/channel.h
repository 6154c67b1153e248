#pragma once

#include <QString>

/** One output channel of a synccard. A record of values only; lives on the GUI thread, owned by its Synccard. */
class Channel
{
public:
    /** The user edits delays in microseconds; commands carry milliseconds. */
    static constexpr double microsecondsPerMillisecond = 1000.0;

    Channel() = default;

    /** The output delay in milliseconds ("synccard output_delay"). */
    double delay() const { return dDelay; }

    /** Whether the output stays active while the system is idle ("synccard output_during_idle"). */
    bool activeDuringIdle() const { return bActiveDuringIdle; }

    /** Sets the delay in milliseconds, without a range check. */
    void setDelay(double delay) { dDelay = delay; }

    /** Sets the delay from the text of its cell, microseconds with a decimal point; 0 when the text is no number. */
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
