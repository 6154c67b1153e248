#pragma once

#include <QDialog>
#include <QPointer>

#include <functional>

class QDoubleSpinBox;

/** Uses the module's dialog like a person, by key and mouse events, on any platform plug-in. Does not own it. */
class DialogUser
{
public:
    using Steps = std::function<void()>;

    enum Outcome {
        NotShown,
        Closed,   // the steps closed it
        LeftOpen, // the steps did not close it; openBy() did
    };

    explicit DialogUser(QDialog* dialog) : target(dialog) {}

    /** Runs \a trigger, which opens the dialog modally. Runs \a steps while it is open, once it is active. */
    Outcome openBy(const Steps& trigger, const Steps& steps) const;

    /** The dialog; null once it is deleted. */
    QDialog* dialog() const { return target; }

    template <typename Widget>
    Widget* find(const char* name) const
    {
        return target->findChild<Widget*>(name);
    }

    /** Presses \a key in the named widget. */
    void press(const char* name, Qt::Key key) const;
    /** Presses the mnemonic of the named label, which gives its widget the focus. */
    void focusBy(const char* label) const;
    /** Picks the item with the user data \a data by keys; false when there is none. */
    bool choose(const char* name, const QString& data) const;
    /** Clicks into a channel cell, on its check box if it has one. Does nothing when there is no such cell. */
    void clickCell(int row, int column) const;
    /** Opens the delay editor of \a row by a double click, after an earlier one has gone. Null when it does not open.
     */
    QDoubleSpinBox* editDelay(int row) const;
    /** Replaces the editor's text by \a text and leaves it by \a key; does nothing without an editor. */
    static void type(QWidget* editor, const QString& text, Qt::Key key = Qt::Key_Tab);
    /** Leaves by "OK", "Cancel", "Escape" or "close", the window's close button. */
    void leave(const QByteArray& way) const;

private:
    QPointer<QDialog> target;
};
