#include "DialogUser.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

static constexpr int pollMilliseconds = 1;
static constexpr int deadlineMilliseconds = 10000;
static constexpr int besideBorder = 10;

DialogUser::Outcome DialogUser::openBy(const Steps& trigger, const Steps& steps) const
{
    Outcome outcome = NotShown;
    QTimer poller;
    QElapsedTimer shown;
    const auto close = [&] {
        poller.stop();
        if (!target || !target->isVisible())
            return;
        outcome = LeftOpen;
        target->done(QDialog::Rejected);
    };
    QObject::connect(&poller, &QTimer::timeout, target, [&] {
        if (outcome != NotShown)
            return;
        // The deadline counts from the start of the dialog's own event loop, because the reads before it may take long.
        if (!shown.isValid())
            shown.start();
        if (QApplication::activeModalWidget() != target)
            return shown.elapsed() > deadlineMilliseconds ? close() : void();
        outcome = Closed;
        // A dialog counts as active even if only its parent is. Keys reach it only if its own window has the focus.
        const auto hasFocus = [this] {
            return QApplication::activeWindow() == target && QApplication::focusWindow() == target->windowHandle();
        };
        target->activateWindow();
        QApplication::processEvents(); // without this call, qWaitFor() sleeps in each opening
        if (QTest::qWaitFor(hasFocus))
            steps();
        close();
    });
    poller.start(pollMilliseconds);
    trigger();
    return outcome;
}

void DialogUser::press(const char* name, Qt::Key key) const
{
    QTest::keyClick(find<QWidget>(name), key);
}

void DialogUser::focusBy(const char* label) const
{
    QTest::keySequence(target.data(), QKeySequence::mnemonic(find<QLabel>(label)->text()));
}

bool DialogUser::choose(const char* name, const QString& data) const
{
    const auto* box = find<QComboBox>(name);
    const int wanted = box->findData(data);
    while (wanted >= 0 && box->isEnabled() && box->currentIndex() != wanted)
        press(name, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    return wanted >= 0 && box->currentIndex() == wanted;
}

void DialogUser::clickCell(int row, int column) const
{
    const auto* table = find<QTableWidget>("tableWidget_channels");
    const QTableWidgetItem* item = table->item(row, column);
    if (!item)
        return;
    const QRect cell = table->visualItemRect(item);
    const QPoint checkBox(cell.left() + besideBorder, cell.center().y());
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, checkBox);
}

QDoubleSpinBox* DialogUser::editDelay(int row) const
{
    const auto* table = find<QTableWidget>("tableWidget_channels");
    const auto editor = [table] { return table->viewport()->findChild<QDoubleSpinBox*>(); };
    if (!QTest::qWaitFor([editor] { return !editor(); }) || !table->item(row, 1))
        return nullptr;
    clickCell(row, 1);
    const QPoint cell = table->visualItemRect(table->item(row, 1)).center();
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    return editor();
}

void DialogUser::type(QWidget* editor, const QString& text, Qt::Key key)
{
    if (!editor)
        return;
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, key);
}

void DialogUser::leave(const QByteArray& way) const
{
    if (way == "Escape")
        QTest::keyClick(target, Qt::Key_Escape);
    else if (way == "close")
        target->close();
    else
        QTest::mouseClick(find<QPushButton>(way == "OK" ? "pushButton_Ok" : "pushButton_2"), Qt::LeftButton);
}
