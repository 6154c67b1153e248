#pragma once

#include <QWheelEvent>

/** A spin box or combo box that the wheel changes only while it has the focus. */
template <typename Box>
class WheelSafe : public Box
{
public:
    WheelSafe() { Box::setFocusPolicy(Qt::StrongFocus); } // the wheel gives no focus

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (Box::hasFocus())
            Box::wheelEvent(event);
        else
            event->ignore(); // What lies below may scroll.
    }
};
