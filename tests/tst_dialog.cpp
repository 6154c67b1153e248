#include "LoadedModule.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QTableWidget>

/** What the dialog does over time: polling, reopening, editing, ending. */
class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void pollsEachSecondWhileOpen();
    void refusesASecondOpening();
    void editsDelays();
    void survivesTheHost();
};

/** As often as another timer of a second, however slow the machine is; not at all after the dialog has closed. */
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
        module.dialog()->done(QDialog::Rejected); // as a host may end it
    });
    module.link.takeCommands();
    QTest::qWait(1200);
    module.open([&] { module.user().leave("OK"); });
    QCOMPARE(module.link.takeCommands().constFirst(), QByteArray("get config is_changeable"));
    QTest::qWait(1200);
    QCOMPARE(module.link.commands, {});
}

void TestDialog::refusesASecondOpening()
{
    LoadedModule module;
    module.open([&] {
        module.link.takeCommands();
        module.find<QDoubleSpinBox>("doubleSpinBox_frequency")->setValue(77.0);
        int result = 0;
        QMetaObject::invokeMethod(module.dialog(), "update_and_exec", Q_RETURN_ARG(int, result));
        QCOMPARE(result, -1);
        QCOMPARE(module.see("doubleSpinBox_frequency"), "10..500:77");
        QCOMPARE(module.link.commands, {});
        module.user().leave("Escape");
    });
}

/** The delay editor offers whole microseconds up to the maximum; Return commits, Escape does not. */
void TestDialog::editsDelays()
{
    LoadedModule module;
    module.open([&] {
        auto* table = module.find<QTableWidget>("tableWidget_channels");
        QDoubleSpinBox* editor = module.user().editDelay(1);
        QCOMPARE(textOfWidget(editor), "0..2000:1500");
        QTest::keyClick(editor, Qt::Key_Up);
        QTest::keyClick(editor, Qt::Key_Return);
        DialogUser::type(module.user().editDelay(0), "7", Qt::Key_Escape);
        QTRY_COMPARE(module.see("tableWidget_channels"), "1,250,x,2000.0|2,1600,o,2000.0");
        table->item(0, 1)->setText("99999");
        editor = module.user().editDelay(0);
        QCOMPARE(editor->text(), "2000");
        DialogUser::type(editor, "1901");
        table->item(1, 1)->setText("x");
        QCOMPARE(module.user().editDelay(1)->value(), 0.0);
        module.user().leave("OK"); // by mouse: the open editor commits as it loses the focus
    });
    QVERIFY(module.link.commands.contains("set synccard output_delay d01 ch01 1.901000"));
    QVERIFY(module.link.commands.contains("set synccard output_delay d01 ch02 0.000000"));
}

/** The host may delete the parent, or end the module, while dialog or warning are open: nothing more is sent. */
void TestDialog::survivesTheHost()
{
    for (const int kind : {0, 1, 2, 3}) {
        const bool isInBox = kind % 2 == 0;
        LoadedModule module("1.23", "set synccard active_mode none=!");
        const auto interfere = [&] {
            if (kind < 2)
                delete module.parent;
            else
                module.loader.module()->exit_module();
        };
        module.open([&] {
            module.user().clickCell(1, 2);
            module.link.takeCommands();
            if (!isInBox)
                return interfere();
            module.insteadOfClosingBox = interfere;
            module.user().leave("OK");
        });
        QCOMPARE(module.link.commands.join(), QByteArray(isInBox ? "set synccard active_mode none" : ""));
        QVERIFY(!module.element->content);
        module.loader.module()->exit_module();
        module.loader.module()->exit_module();
    }
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
