#pragma once

#include <QDialog>
#include <QPointer>

#include <functional>

class QDoubleSpinBox;

/** Operates the module's dialog by key and mouse events, on any platform plug-in. Does not own the dialog. */
class DialogUser
{
public:
    using Steps = std::function<void()>;

    enum Outcome {
        NotShown,
        Closed,   // the steps closed the dialog
        LeftOpen, // the steps did not close the dialog, so openBy() did
    };

    explicit DialogUser(QDialog* dialog) : target(dialog) {}

    /** Runs \a trigger, which opens the dialog modally. Runs \a steps as soon as the open dialog is active. */
    Outcome openBy(const Steps& trigger, const Steps& steps) const;

    /** Returns the dialog, or null after its deletion. */
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
    /** Chooses the item with the user data \a data by keys. Returns false if the item cannot be chosen. */
    bool choose(const char* name, const QString& data) const;
    /** Clicks a channel cell, on its check box if it has one. Does nothing if the cell does not exist. */
    void clickCell(int row, int column) const;
    /**
     * Opens the delay editor of \a row by a double click, after any earlier editor has closed. Returns null if the
     * editor does not open.
     */
    QDoubleSpinBox* editDelay(int row) const;
    /** Types \a text in place of the editor's text and leaves the editor by \a key. \a editor may be null. */
    static void type(QWidget* editor, const QString& text, Qt::Key key = Qt::Key_Tab);
    /** Closes the dialog by "OK", "Cancel", "Escape" or "close", the window's close button. */
    void leave(const QByteArray& way) const;

private:
    QPointer<QDialog> target;
};
