#include "Bench.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QTableWidget>

/** What the dialog does over time: polling, reopening, locking, editing, dying. */
class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void pollsEachSecondWhileOpen();
    void reopensWithFreshContents();
    void reopensLegacy();
    void locksAndUnlocks();
    void refusesASecondOpening();
    void opensWithoutHostObjects();
    void editsDelays();
    void survivesTheParent();
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
        const QByteArrayList polls = bench.channel.takeCommands();
        QCOMPARE(polls.mid(0, 2).join(','),
                 QByteArray("get synccard has_input_frequency,get synccard input_frequency"));
        QVERIFY2(polls.size() >= 2 * 2 && polls.size() <= 2 * 4, qPrintable(QString::number(polls.size())));
        bench.user().leave("Escape");
    });
    bench.channel.takeCommands();
    QTest::qWait(1200);
    bench.open([&] { bench.user().leave("OK"); });
    QCOMPARE(bench.channel.takeCommands().constFirst(), QByteArray("get config is_changeable"));
    QTest::qWait(1200);
    QCOMPARE(bench.channel.commands, {});
}

void TestDialog::reopensWithFreshContents()
{
    Bench bench;
    const auto toggleAndAccept = [&] {
        bench.user().clickCell(0, 2);
        bench.user().leave("OK");
    };
    bench.open(toggleAndAccept);
    QVERIFY(bench.channel.takeCommands().contains("set synccard output_during_idle d01 ch02 no"));
    bench.channel.script("synccard number_of_channels d01=1");
    bench.open(toggleAndAccept);
    QVERIFY(!bench.channel.takeCommands().contains("set synccard output_during_idle d01 ch02 no"));
    bench.channel.script("synccard number_of_synccards=1;synccard number_of_modes=1;synccard number_of_channels d01=1;"
                         "synccard internal_frequency d01=77");
    bench.open([&] {
        QCOMPARE(bench.see("tableWidget_synccards"), "Sync card<0x0402>,12345<12345>");
        QCOMPARE(bench.see("comboBox_modes"), "Fast mode=fast|*direct settings=direct settings");
        QCOMPARE(bench.see("tableWidget_channels"), "1,250,x,2000.0");
        QTest::keyClick(bench.find<QWidget>("doubleSpinBox_frequency"), Qt::Key_Up);
        bench.channel.takeCommands();
        bench.user().leave("Escape");
    });
    QCOMPARE(bench.channel.takeCommands(), {"set synccard internal_frequency d01 77.000000"});
    // What the widgets still show, and what changed in an earlier opening, does not count in the next one.
    bench.channel.script("synccard available=no");
    bench.open([&] { bench.user().leave("Cancel"); });
    QCOMPARE(bench.channel.takeCommands().join(','), QByteArray("get config is_changeable,get synccard available"));
    bench.channel.script("synccard available=yes");
    bench.open([&] {
        bench.channel.takeCommands();
        bench.user().leave("OK");
    });
    QCOMPARE(bench.channel.commands, {});
}

/** One card and no change at the next opening; after an upgrade the sync-input labels stay hidden. */
void TestDialog::reopensLegacy()
{
    Bench bench("0.8");
    bench.open([&] {
        bench.user().choose("comboBox_modes", "fast");
        bench.user().leave("Cancel");
    });
    bench.open([&] { bench.user().leave("OK"); });
    QVERIFY(!bench.channel.commands.join().contains("set "));
    QCOMPARE(bench.see("tableWidget_synccards"), "Old card,4711");
    bench.versions = BackendVersions({1, 0, 0}, {1, 23, 0}, {1, 0, 0}, "FERNBANK");
    bench.channel.script("synccard number_of_channels d01=1200");
    bench.look();
    QVERIFY(bench.see("label_syncInput").endsWith(" hidden"));
    QCOMPARE(bench.find<QTableWidget>("tableWidget_channels")->rowCount(), 999);
}

/** The lock icon appears while locked; a later, unlocked opening gives everything back. */
void TestDialog::locksAndUnlocks()
{
    Bench bench;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    bench.parent->setWindowIcon(pixmap);
    const qint64 parentIcon = bench.parent->windowIcon().cacheKey();
    bench.channel.script("config is_changeable=no");
    bench.look();
    QVERIFY(bench.dialog()->windowIcon().cacheKey() != parentIcon);
    bench.channel.script("synccard available=no");
    bench.look();
    QVERIFY(bench.see("comboBox_modes").endsWith(" off") && bench.see("label_source").endsWith(" off"));
    bench.channel.script("config is_changeable=yes;synccard available=yes");
    bench.look();
    QCOMPARE(bench.dialog()->windowIcon().cacheKey(), parentIcon);
    for (const char* name : {"comboBox_modes", "comboBox_source", "comboBox_output", "doubleSpinBox_frequency",
                             "tableWidget_channels", "pushButton_Ok", "label_source", "tableWidget_synccards"})
        QVERIFY2(!bench.see(name).contains(" off"), name);
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

/** A host that hands over nothing gets a dialog as without a synccard. */
void TestDialog::opensWithoutHostObjects()
{
    Bench bench;
    bench.loader.module()->exit_module();
    bench.loader.setParameters(nullptr, nullptr, nullptr, true);
    QVERIFY(bench.loader.module()->get_gui_elements().first()->menu_entry);
    const int result = bench.open([&] {
        QVERIFY(bench.dialog()->windowIcon().isNull() && !bench.see("label_error").endsWith(" hidden"));
        bench.user().leave("Escape");
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(bench.channel.commands, {});
}

/** The delay editor offers whole microseconds up to the maximum; Return commits, Escape does not. */
void TestDialog::editsDelays()
{
    Bench bench;
    bench.open([&] {
        auto* table = bench.find<QTableWidget>("tableWidget_channels");
        QDoubleSpinBox* editor = bench.user().editDelay(1);
        QVERIFY(editor);
        QVERIFY(editor->minimum() == 0.0 && editor->maximum() == 2000.0 && editor->decimals() == 0);
        QVERIFY(editor->singleStep() == 100.0 && editor->value() == 1500.0);
        QTest::keyClick(editor, Qt::Key_Up);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(bench.see("tableWidget_channels"), "1,250,x,2000.0|2,1600,o,2000.0");
        editor = bench.user().editDelay(0);
        QTest::keyClick(editor, Qt::Key_Up);
        QTest::keyClick(editor, Qt::Key_Escape);
        QTRY_COMPARE(bench.see("tableWidget_channels"), "1,250,x,2000.0|2,1600,o,2000.0");
        table->item(0, 1)->setText("99999");
        editor = bench.user().editDelay(0);
        QCOMPARE(editor->value(), 2000.0);
        DialogUser::type(editor, "1901");
        table->item(1, 1)->setText("x");
        QCOMPARE(bench.user().editDelay(1)->value(), 0.0);
        bench.user().leave("OK"); // by mouse: the open editor commits as it loses the focus
    });
    QVERIFY(bench.channel.commands.contains("set synccard output_delay d01 ch01 1.901000"));
    QVERIFY(bench.channel.commands.contains("set synccard output_delay d01 ch02 0.000000"));
}

/** The parent may die while the dialog is open, and while the warning box is: then nothing more is sent. */
void TestDialog::survivesTheParent()
{
    for (const bool inBox : {false, true}) {
        Bench bench("1.23", "set synccard active_mode none=!");
        const auto deleteParent = [&] { delete bench.parent; };
        bench.open([&] {
            bench.user().clickCell(1, 2);
            bench.channel.takeCommands();
            if (!inBox)
                return deleteParent();
            bench.insteadOfClosingBox = deleteParent;
            bench.user().leave("OK");
        });
        QCOMPARE(bench.channel.commands.join(), QByteArray(inBox ? "set synccard active_mode none" : ""));
        QVERIFY(!bench.element->content);
        bench.loader.module()->exit_module();
        bench.loader.module()->exit_module();
    }
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
