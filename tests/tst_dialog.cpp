#include "Bench.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QTableWidget>

/** What the dialog does over time: polling, reopening, editing. */
class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void pollsEachSecondWhileOpen();
    void refusesASecondOpening();
    void editsDelays();
};

/** As often as another timer of a second, however slow the machine is; not at all after the dialog has closed. */
void TestDialog::pollsEachSecondWhileOpen()
{
    Bench bench;
    bench.open([&] {
        bench.channel.takeCommands();
        int seconds = 0;
        QTimer reference;
        connect(&reference, &QTimer::timeout, this, [&] { ++seconds; });
        reference.start(1000);
        QTRY_COMPARE_WITH_TIMEOUT(seconds, 3, 60000);
        const int polls = bench.channel.takeCommands().count("get synccard input_frequency");
        QVERIFY2(polls >= 2 && polls <= 4, qPrintable(QString::number(polls)));
        bench.dialog()->done(QDialog::Rejected); // as a host may end it
    });
    bench.channel.takeCommands();
    QTest::qWait(1200);
    bench.open([&] { bench.user().leave("OK"); });
    QCOMPARE(bench.channel.takeCommands().constFirst(), QByteArray("get config is_changeable"));
    QTest::qWait(1200);
    QCOMPARE(bench.channel.commands, {});
}

void TestDialog::refusesASecondOpening()
{
    Bench bench;
    bench.open([&] {
        bench.channel.takeCommands();
        bench.find<QDoubleSpinBox>("doubleSpinBox_frequency")->setValue(77.0);
        int result = 0;
        QMetaObject::invokeMethod(bench.dialog(), "update_and_exec", Q_RETURN_ARG(int, result));
        QCOMPARE(result, -1);
        QCOMPARE(bench.see("doubleSpinBox_frequency"), "10..500:77");
        QCOMPARE(bench.channel.commands, {});
        bench.user().leave("Escape");
    });
}

/** The delay editor offers whole microseconds up to the maximum; Return commits, Escape does not. */
void TestDialog::editsDelays()
{
    Bench bench;
    bench.open([&] {
        auto* table = bench.find<QTableWidget>("tableWidget_channels");
        QDoubleSpinBox* editor = bench.user().editDelay(1);
        QCOMPARE(textOfWidget(editor), "0..2000:1500");
        QTest::keyClick(editor, Qt::Key_Up);
        QTest::keyClick(editor, Qt::Key_Return);
        DialogUser::type(bench.user().editDelay(0), "7", Qt::Key_Escape);
        QTRY_COMPARE(bench.see("tableWidget_channels"), "1,250,x,2000.0|2,1600,o,2000.0");
        table->item(0, 1)->setText("99999");
        editor = bench.user().editDelay(0);
        QCOMPARE(editor->text(), "2000");
        DialogUser::type(editor, "1901");
        table->item(1, 1)->setText("x");
        QCOMPARE(bench.user().editDelay(1)->value(), 0.0);
        bench.user().leave("OK"); // by mouse: the open editor commits as it loses the focus
    });
    QVERIFY(bench.channel.commands.contains("set synccard output_delay d01 ch01 1.901000"));
    QVERIFY(bench.channel.commands.contains("set synccard output_delay d01 ch02 0.000000"));
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
