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
    void isShownAndHiddenByTheHost();
    void hasForm();
};

/** As often as another timer of a second, however slow the machine is. Not at all after the host closed the dialog. */
void TestDialog::pollsEachSecondWhileOpen()
{
    LoadedModule module;
    QTimer clock;
    int seconds = 0;
    int polls = 0;
    connect(&clock, &QTimer::timeout, this, [&] { ++seconds; });
    module.link.during = [&](const QByteArray& text) { polls += text == "get synccard has_input_frequency"; };
    module.open([&] {
        clock.start(1000);
        QTRY_COMPARE_WITH_TIMEOUT(polls, 4, 50000);
        module.dialog()->done(QDialog::Rejected);
    });
    QVERIFY2(seconds >= 3 && seconds <= 5, qPrintable(QString::number(seconds)));
    module.link.takeCommands();
    QTest::qWait(1200);
    QCOMPARE(module.link.commands, {});
}

/** The menu entry opens a dialog that the host has shown. It writes no source that changes before or after exec(). */
void TestDialog::isShownAndHiddenByTheHost()
{
    LoadedModule module;
    auto* source = module.find<QComboBox>("comboBox_source");
    module.look();
    module.dialog()->show();
    module.link.during = [&](const QByteArray& text) {
        if (text != "get synccard available")
            return;
        module.dialog()->show();
        source->setCurrentIndex(1);
    };
    const int result = module.open([&] {
        module.link.takeCommands();
        module.dialog()->hide();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    source->setCurrentIndex(2);
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

/** Texts, sizes and alignments, and names for a screen reader. */
void TestDialog::hasForm()
{
    LoadedModule module;
    auto* channels = module.find<QTableWidget>("tableWidget_channels");
    const auto* cards = module.find<QTableWidget>("tableWidget_synccards");
    QCOMPARE(module.dialog()->objectName(), "synccarddialog");
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(module.find<QLabel>(name)->textFormat(), Qt::PlainText);
    module.open([&] {
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
        const QDoubleSpinBox* editor = module.user().editDelay(0);
        QCOMPARE(editor->accessibleName() + ' ' + editor->text(), "Delay [us] 250");
        module.user().leave("Escape");
    });
    const auto* source = module.find<QWidget>("comboBox_source");
    module.look();
    QCOMPARE(module.find<QWidget>("doubleSpinBox_frequency")->minimumWidth(), source->width());
    QCOMPARE(module.find<QWidget>("spinBox_externalDivisor")->minimumWidth(), source->width());
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
