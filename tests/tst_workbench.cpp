#include "ControllerPane.h"
#include "DevelopmentHost.h"
#include "FilteredTable.h"
#include "LoadedModule.h"
#include "LogPane.h"
#include "MainWindow.h"
#include "Workbench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>

/** The host's windows: the log, the faults, the controller's table, recordings and refusals. */
class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { failOnWarnings(); }
    void logsInOrder();
    void followsTheEnd();
    void makesFaults();
    void editsTheController();
    void replays();
};

namespace {

/** The host connected to "full", with its windows, and the actions of a user. */
struct Windows
{
    explicit Windows(HostSetup setup = HostSetup())
        : host((readController("full", &setup.controller), setup)), window(&host), workbench(&host),
          log(workbench.findChild<LogPane*>()->findChild<FilteredTable*>()), rows(log->model())
    {
        QCOMPARE(host.start(&window), QString());
        workbench.show();
        window.show();
    }

    /** Opens the dialog by its menu entry, runs \a steps and closes the dialog by Escape. */
    DialogUser::Outcome open(const DialogUser::Steps& steps = [] {})
    {
        window.activateWindow();
        QTest::qVerify(QTest::qWaitForWindowActive(&window), "the host's window is active", "", __FILE__, __LINE__);
        const DialogUser user(host.dialog());
        return user.openBy([this] { host.entry().menu_entry->trigger(); },
                           [&] {
                               steps();
                               user.leave("Escape");
                           });
    }
    void poll() const { QMetaObject::invokeMethod(host.dialog(), "poll_input_frequency"); }
    QString see(const char* name) const { return textOfWidget(host.dialog()->findChild<QWidget*>(name)); }

    /** Returns the log without times: "get|synccard available|yes|ok". */
    QStringList lines() const
    {
        QCoreApplication::processEvents();
        QStringList all;
        for (int row = 0; row < rows->rowCount(); ++row)
            all += rows->index(row, 0).data(FilteredTable::lineRole).toString().section('\t', 1, 4).replace('\t', '|');
        return all;
    }

    /** Types \a text in place of the text in \a widget. */
    void type(QWidget* widget, const QString& text)
    {
        workbench.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&workbench));
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, text);
    }

    DevelopmentHost host;
    MainWindow window;
    Workbench workbench;
    FilteredTable* log;
    QAbstractItemModel* rows;
};

} // namespace

/** A report follows its command. A failed command is bold, and is shown even if it is a poll. */
void TestWorkbench::logsInOrder()
{
    HostSetup failing;
    failing.failing.setPattern("number_of_modes");
    Windows windows(failing);
    QCOMPARE(windows.open(), DialogUser::NotShown);
    const QStringList lines = windows.lines();
    QCOMPARE(lines.mid(0, 2),
             QStringList({"note|Connected to full, protocol " + newestProtocol().toString() + ", model QUILLSTONE 3||",
                          "get|config is_changeable|yes|ok"}));
    QCOMPARE(lines.mid(lines.size() - 2),
             QStringList({"int|synccard number_of_modes||failed",
                          "report|Error: Unable to get Synccard number of modes|standard ZORVAN3 1|"}));
    for (const int fromEnd : {1, 2, 3})
        QCOMPARE(windows.rows->index(lines.size() - fromEnd, 2).data(Qt::FontRole).value<QFont>().bold(), fromEnd < 3);
    windows.host.faults().failMatching(QRegularExpression(" input_frequency"));
    windows.open([&] {
        const int before = windows.lines().size();
        windows.poll();
        QCOMPARE(windows.lines().value(before), QString("get|synccard input_frequency||failed"));
        QCOMPARE(windows.rows->rowCount(), before + 2);
        windows.workbench.findChild<QCheckBox*>()->click(); // "Hide polls"
        QCOMPARE(windows.rows->rowCount(), before + 3);
        windows.window.close(); // A box would disturb the dialog.
        QCOMPARE(windows.lines().constLast(), QString("note|Close the dialog first.||"));
        QVERIFY(windows.window.isVisible());
    });
    auto* sum = windows.workbench.findChild<LogPane*>()->findChildren<QLabel*>().value(1);
    windows.type(windows.log->filter(), "number of modes");
    QTRY_VERIFY(sum->text().startsWith("1 of ") && sum->text().contains(" rows, 0 commands, "));
    windows.type(windows.log->filter(), "FAILED");
    QTRY_VERIFY(sum->text().startsWith("2 of ") && sum->text().contains(" rows, 2 commands, "));
    windows.log->selectRow(1);
    QTRY_VERIFY(sum->text().startsWith("1 of ") && sum->text().contains(" rows, 1 command, "));
    windows.log->setFocus();
    QTest::keyClick(windows.log, Qt::Key_C, Qt::ControlModifier);
    static const QRegularExpression copied("^[\\d:.]+\tget\tsynccard input_frequency\t\tfailed\t[\\d.]+ ms\n$");
    QVERIFY(copied.match(QApplication::clipboard()->text()).hasMatch());
}

/** The log stays at its end through openings, other sizes and slow commands, unless the user has scrolled up. */
void TestWorkbench::followsTheEnd()
{
    Windows windows;
    QScrollBar* bar = windows.log->verticalScrollBar();
    const auto isAtEnd = [&] {
        const QModelIndex last = windows.rows->index(windows.rows->rowCount() - 1, 0);
        return windows.log->viewport()->rect().contains(windows.log->visualRect(last));
    };
    for (const QSize& size : {QSize(960, 560), QSize(700, 420), QSize(400, 700), QSize(1000, 500)}) {
        windows.workbench.resize(size);
        windows.open();
        QTRY_VERIFY(isAtEnd());
    }
    int value = bar->value();
    connect(&windows.host.channel(), &ControllerChannel::executed, this, [&](const CommandRecord& record) {
        // No event loop runs in the middle of an opening.
        if (windows.host.faults().latency() > 0 && record.command == "synccard output d01")
            QVERIFY(bar->value() > value + 20);
    });
    windows.host.faults().setLatency(11);
    windows.open();
    windows.host.faults().setLatency(0);
    bar->triggerAction(QScrollBar::SliderPageStepSub);
    value = bar->value();
    windows.open();
    QTest::qWait(1);
    QCOMPARE(bar->value(), value);
    bar->triggerAction(QScrollBar::SliderToMaximum);
    windows.open();
    QTRY_VERIFY(isAtEnd());
}

/** A fault is active as soon as it is typed. Polls do not count, and do not change a number that the user types. */
void TestWorkbench::makesFaults()
{
    Windows windows;
    const Faults& faults = windows.host.faults();
    auto* pattern = windows.workbench.findChildren<QLineEdit*>().value(3); // after two filters and a number
    windows.type(pattern, "output_(");
    QCOMPARE(faults.failing().pattern(), QString("output_"));
    QVERIFY(pattern->accessibleDescription().contains("missing closing parenthesis"));
    QTest::keyClicks(pattern, "x)");
    QCOMPARE(faults.failing().pattern() + pattern->accessibleDescription(), QString("output_(x)"));
    auto* count = windows.workbench.findChildren<QSpinBox*>().value(0);
    windows.type(count, "99");
    windows.poll();
    QCOMPARE(faults.commandsToFailure(), 99);
    const DialogUser user(windows.host.dialog());
    auto counted =
        connect(&windows.host.channel(), &ControllerChannel::executed, count, [&] { QCOMPARE(count->value(), 99); });
    user.openBy([&] { windows.host.entry().menu_entry->trigger(); },
                [&] {
                    disconnect(counted);
                    user.leave("Escape");
                });
    QVERIFY(faults.commandsToFailure() < 70);
    QCOMPARE(count->value(), faults.commandsToFailure());
    windows.type(count, "2");
    QCOMPARE(windows.open(), DialogUser::Closed);
    QCOMPARE(faults.commandsToFailure() + count->value(), 0);
    QCOMPARE(windows.lines().filter("failed"), QStringList("get|synccard available||failed"));
}

/** Keys change answers, even while the dialog is open. Several lines can be pasted. A wrong line changes nothing. */
void TestWorkbench::editsTheController()
{
    Windows windows;
    windows.workbench.findChild<QTabWidget*>()->setCurrentIndex(1);
    const auto* pane = windows.workbench.findChild<ControllerPane*>();
    auto* table = pane->findChild<FilteredTable*>();
    const auto* problem = pane->findChildren<QLabel*>().constLast();
    QAbstractItemModel* rows = table->model();
    const auto firstRow = [&] {
        return rows->index(0, 0).data().toString() + " = " + rows->index(0, 1).data().toString();
    };
    const auto edit = [&](const QString& filter, const QString& answer) {
        windows.type(table->filter(), filter);
        table->setFocus();
        table->setCurrentIndex(rows->index(0, 0));
        QTest::keyClick(table, Qt::Key_Return);
        auto* editor = table->viewport()->findChild<QLineEdit*>();
        QTest::keyClicks(editor, answer);
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::qWait(1);
        return firstRow() + problem->text();
    };
    const auto paste = [&](const QString& lines) {
        QApplication::clipboard()->setText(lines);
        table->setFocus();
        QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
        return problem->text();
    };
    QCOMPARE(edit("max_internal_frequency d01", "75"), QString("synccard max_internal_frequency d01 * = 75"));
    QVERIFY(paste("synccard source d03 = video\nsynccard sauce d03 = video").startsWith("line 2: "));
    QCOMPARE(paste("synccard number_of_synccards = 9\nsynccard synccard d[03-09] = 0x0402 1[03-09]"), QString());
    const QPointer<QAction> entry(windows.host.entry().menu_entry);
    windows.open([&] {
        QCOMPARE(windows.see("doubleSpinBox_frequency"), QString("10..75:60"));
        QVERIFY(windows.see("tableWidget_synccards").contains(",109"));
        windows.type(table->filter(), "number_of_synccards");
        QCOMPARE(firstRow(), QString("synccard number_of_synccards = 9"));
        QCOMPARE(edit("synccard input_frequency", "ttl 7"), QString("synccard input_frequency * = ttl 7"));
        windows.poll();
        QCOMPARE(windows.see("label_inputFrequency"), QString("7"));
        QVERIFY(edit("protocol", "0.12.7").endsWith("Close the dialog first."));
    });
    const qint64 unlocked = windows.host.dialog()->windowIcon().cacheKey();
    paste("config is_changeable = no");
    windows.open();
    QVERIFY(windows.host.dialog()->windowIcon().cacheKey() != unlocked);
    QCOMPARE(edit("max_internal_frequency d01", "80"), QString("synccard max_internal_frequency d01 * = 80"));
    windows.type(table->filter(), "synccard synccard d0");
    table->setFocus();
    table->selectAll();
    QTest::keyClick(table, Qt::Key_Delete);
    QTRY_COMPARE(rows->rowCount(), 0);
    QCOMPARE(edit("protocol", "0.12.7"), QString("protocol * = 0.12.7"));
    QVERIFY(!entry);
    QCOMPARE(windows.open(), DialogUser::Closed);
}

/** The log notes the first difference from the recording. The workbench has only the log. */
void TestWorkbench::replays()
{
    HostSetup setup;
    setup.replay = DATA_DIR "/recorded-controller.txt";
    Windows windows(setup);
    QCOMPARE(windows.workbench.findChild<QTabWidget*>()->count(), 1);
    QCOMPARE(windows.open(), DialogUser::Closed); // as without a synccard
    const QString note = R"(note|%1:5: expected "get synccard available", found "get config is_changeable"||)";
    QCOMPARE(windows.lines().filter("expected").join('\n'), note.arg(setup.replay));
}

QTEST_MAIN(TestWorkbench)
#include "tst_workbench.moc"
