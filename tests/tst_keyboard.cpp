#include "LoadedModule.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QTableWidget>

/** The dialog without a mouse, and as a screen reader says it. */
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void walks_data();
    void walks();
    void namesTheDelayEditor();
};

static QString spokenName(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/** The controls that Tab, or with \a isBack Shift+Tab, reaches from the one that has the focus, until it comes back. */
static QStringList round(const LoadedModule& module, bool isBack)
{
    QStringList reached;
    const QWidget* const start = module.dialog()->focusWidget();
    do {
        QWidget* focus = module.dialog()->focusWidget();
        reached.append(focus->objectName() + (spokenName(focus).isEmpty() ? " without a name" : ""));
        QTest::keyClick(focus, isBack ? Qt::Key_Backtab : Qt::Key_Tab, isBack ? Qt::ShiftModifier : Qt::NoModifier);
    } while (module.dialog()->focusWidget() != start && reached.size() < 20);
    reached.sort();
    return reached;
}

void TestKeyboard::walks_data()
{
    QTest::addColumn<QString>("versions");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("direct") << "1.23" << QByteArray();
    QTest::newRow("external source") << "1.23" << QByteArray("synccard source d01=video");
    QTest::newRow("predefined mode") << "1.23" << QByteArray("zorvan2 get synccard active_mode=a b c d slow");
    QTest::newRow("legacy") << "0.12" << QByteArray();
    QTest::newRow("locked") << "1.23" << QByteArray("config is_changeable=no");
    QTest::newRow("none") << "1.23" << QByteArray("synccard available=no");
}

/** Each control that is enabled is reached once a round; none is a trap. */
void TestKeyboard::walks()
{
    QFETCH(QString, versions);
    QFETCH(QByteArray, answer);
    LoadedModule module(versions, answer);
    module.open([&] {
        QStringList expected;
        const QList<QWidget*> widgets = module.dialog()->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
            if (takesFocus && widget->isVisible() && widget->isEnabled() && !widget->objectName().startsWith("qt_"))
                expected.append(widget->objectName());
        }
        expected.sort();
        for (const bool isBack : {false, true})
            QCOMPARE(round(module, isBack), expected);
        module.user().leave("Escape");
    });
}

void TestKeyboard::namesTheDelayEditor()
{
    LoadedModule module;
    module.open([&] {
        auto* table = module.find<QTableWidget>("tableWidget_channels");
        QCOMPARE(spokenName(table), "Synccard channels");
        QCOMPARE(spokenName(module.find<QWidget>("tableWidget_synccards")), "Available synccards");
        table->setFocus();
        table->setCurrentCell(0, 1);
        QTest::keyClick(table, Qt::Key_Down);
        QCOMPARE(table->currentRow(), 1);
        QCOMPARE(spokenName(module.user().editDelay(0)), "Delay [us]");
        module.user().leave("Cancel");
    });
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
