#include "LoadedModule.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

/** The dialog over time, and its form. */
class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void pollsEachSecondWhileOpen();
    void hasForm();
};

/** As often as another timer of a second, however slow the machine is. */
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
    // The menu entry opens a dialog that the host has shown. No source is written that changes during the reads, and
    // nothing is sent once the host has hidden the dialog, which done() does, too.
    auto* source = module.find<QComboBox>("comboBox_source");
    module.dialog()->show();
    module.link.during = [&](const QByteArray& text) {
        if (text == "get synccard available")
            source->setCurrentIndex(1);
    };
    const int result = module.open([&] {
        module.link.takeCommands();
        QMetaObject::invokeMethod(module.dialog(), "poll_input_frequency");
        QCoreApplication::processEvents();
        module.dialog()->hide();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    source->setCurrentIndex(2);
    QTest::qWait(1200);
    QCOMPARE(module.link.commands.join(", "), "get synccard has_input_frequency, get synccard input_frequency");
}

/** Heights and widths in pixels, and what the headers do. */
static QList<int> layoutOf(const QTableWidget* table)
{
    const QHeaderView* header = table->horizontalHeader();
    return {table->maximumHeight(),       table->rowHeight(0),         table->columnWidth(0),
            header->stretchLastSection(), header->sectionsClickable(), table->verticalHeader()->isVisibleTo(table),
            table->selectionMode()};
}

/** Texts, sizes and alignments, the keys that lead to a control, and names for a screen reader. */
void TestDialog::hasForm()
{
    LoadedModule module;
    auto* channels = module.find<QTableWidget>("tableWidget_channels");
    const auto* cards = module.find<QTableWidget>("tableWidget_synccards");
    QCOMPARE(module.dialog()->objectName(), "synccarddialog");
    QCOMPARE(channels->columnWidth(0), 200);
    QCOMPARE(cards->columnWidth(0), 200);
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(module.find<QLabel>(name)->textFormat(), Qt::PlainText);
    module.open([&] {
        QStringList focused;
        for (const Qt::Key mnemonic : {Qt::Key_S, Qt::Key_C, Qt::Key_F, Qt::Key_O}) {
            QTest::keyClick(module.dialog(), mnemonic, Qt::AltModifier);
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
        QCOMPARE(channels->accessibleName() + ", " + cards->accessibleName(), "Synccard channels, Available synccards");
        channels->setCurrentCell(0, 1);
        QTest::keyClick(channels, Qt::Key_Down);
        QCOMPARE(channels->currentRow(), 1);
        const QDoubleSpinBox* editor = module.user().editDelay(0);
        QCOMPARE(editor->accessibleName() + ' ' + editor->text(), "Delay [us] 250");
        module.user().leave("Escape");
    });
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
