#include "LoadedModule.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

/** The dialog over time, its form, and its tables without a mouse. */
class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void pollsEachSecondWhileOpen();
    void hasForm();
    void namesTheTables();
};

/** As often as another timer of a second, however slow the machine is; not at all after the host has closed it. */
void TestDialog::pollsEachSecondWhileOpen()
{
    LoadedModule module;
    module.open([&] {
        module.link.takeCommands();
        int seconds = 0;
        QTimer reference;
        connect(&reference, &QTimer::timeout, this, [&] { ++seconds; });
        reference.start(1000);
        QTRY_COMPARE_WITH_TIMEOUT(seconds, 3, 60000);
        const int polls = module.link.takeCommands().count("get synccard input_frequency");
        QVERIFY2(polls >= 2 && polls <= 4, qPrintable(QString::number(polls)));
        module.dialog()->done(QDialog::Rejected);
    });
    module.link.takeCommands();
    QTest::qWait(1200);
    QCOMPARE(module.link.commands, {});
}

/** Heights and widths in pixels, and what the headers do. */
static QList<int> layoutOf(const QTableWidget* table)
{
    const QHeaderView* header = table->horizontalHeader();
    return {table->maximumHeight(),       table->rowHeight(0),         table->columnWidth(0),
            header->stretchLastSection(), header->sectionsClickable(), table->verticalHeader()->isVisibleTo(table),
            table->selectionMode()};
}

void TestDialog::hasForm()
{
    LoadedModule module;
    const auto* channels = module.find<QTableWidget>("tableWidget_channels");
    const auto* cards = module.find<QTableWidget>("tableWidget_synccards");
    QCOMPARE(module.dialog()->objectName(), "synccarddialog");
    QCOMPARE(channels->columnWidth(0), 200);
    QCOMPARE(cards->columnWidth(0), 200);
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(module.find<QLabel>(name)->textFormat(), Qt::PlainText);
    module.open([&] {
        QStringList focused;
        for (const Qt::Key mnemonic : {Qt::Key_S, Qt::Key_C, Qt::Key_F, Qt::Key_O}) {
            module.user().focus(mnemonic);
            focused.append(module.dialog()->focusWidget()->objectName());
        }
        QCOMPARE(focused.join(' '), "comboBox_modes comboBox_source doubleSpinBox_frequency comboBox_output");
        QCOMPARE(layoutOf(channels), (QList<int>{110, 20, 110, true, false, false, QTableWidget::NoSelection}));
        QCOMPARE(layoutOf(cards), (QList<int>{100, 28, 165, true, false, false, QTableWidget::NoSelection}));
        QCOMPARE(channels->columnWidth(1), 110);
        QVERIFY(channels->isColumnHidden(3));
        QCOMPARE(channels->item(0, 0)->flags(), Qt::ItemIsEnabled);
        QCOMPARE(channels->item(0, 1)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(cards->item(0, 1)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(cards->editTriggers(), QTableWidget::NoEditTriggers);
        QCOMPARE(module.dialog()->minimumSize(), module.dialog()->maximumSize());
        module.user().leave("Escape");
    });
}

static QString spokenName(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/** The arrow keys move in the tables, and a screen reader names them and the editor. */
void TestDialog::namesTheTables()
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
        QDoubleSpinBox* editor = module.user().editDelay(0);
        QCOMPARE(editor->text(), "250");
        QCOMPARE(spokenName(editor), "Delay [us]");
        module.user().leave("Cancel");
    });
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
