#include "CommandPane.h"
#include "ControllerPane.h"
#include "DevelopmentHost.h"
#include "Files.h"
#include "LoadedModule.h"
#include "StepCounter.h"
#include "Workbench.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>

/** Recorded sessions with the host, the tree of the controller's state, and the workbench beside the dialog. */
class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { failOnWarnings(); }
    void replaysWhatItRecorded();
    void editsTheController();
    void staysUsableBesideTheDialog();
    void logsOpeningAndExit();
};

namespace {

/** Opens the dialog by its menu entry. */
void open(DevelopmentHost& host, const std::function<void(const DialogUser&)>& steps,
          DialogUser::Outcome expected = DialogUser::Closed)
{
    host.window().show();
    host.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&host.window()));
    const DialogUser user(host.dialog());
    QCOMPARE(user.openBy([&] { host.entry().menu_entry->trigger(); }, [&] { steps(user); }), expected);
}

QList<QSize> iconSizes(DevelopmentHost& host)
{
    open(host, [](const DialogUser& user) { user.leave("Escape"); });
    return host.dialog()->windowIcon().availableSizes();
}

void raiseFrequency(const DialogUser& user)
{
    user.press("doubleSpinBox_frequency", Qt::Key_Up);
    QMetaObject::invokeMethod(user.dialog(), "poll_input_frequency");
    user.leave("OK");
}

/** Records one opening, during which nothing can be changed. Returns what the host said. */
QStringList record(const QString& file)
{
    DevelopmentHost host{HostSetup()};
    host.start();
    QStringList said = {host.startRecording(file)};
    open(host, [&](const DialogUser& user) {
        said << host.stopRecording() << host.startRecording(file) << host.resetController();
        raiseFrequency(user);
    });
    said << host.window().windowTitle() << host.startRecording(file);
    return said << (host.recorder().isRecording() ? "goes on" : "has ended") << host.stopRecording();
}

} // namespace

/** A replay shows the recorded controller and ignores the number of polls. From the first difference on all fails. */
void TestWorkbench::replaysWhatItRecorded()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("a");
    const QString busy = "Close the dialog first.";
    const QString title = "recording a, full, protocol 1.23.0, process %1 - Development Host";
    const QString exists = file + ": this file exists; name another one, or remove it first";
    QCOMPARE(record(file),
             QStringList({"", busy, busy, busy, title.arg(QCoreApplication::applicationPid()), exists, "goes on", ""}));
    QByteArray text = readFile(file);
    text.replace("frequency d01 -> 60\n", "frequency d01 -> 77\n").replace("frequency d01 61", "frequency d01 78");
    writeFile(file, text);
    HostSetup replaying;
    replaying.replay = file;
    replaying.state.protocol = VersionInfo(0, 9, 0);
    {
        DevelopmentHost host(replaying);
        QVERIFY2(host.start(), qPrintable(host.errorString()));
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(host.rewindReplay(), QString());
            open(host, [&](const DialogUser& user) {
                QMetaObject::invokeMethod(user.dialog(), "poll_input_frequency");
                QCOMPARE(textOfWidget(user.find<QWidget>("label_inputFrequency")), "59.940");
                QCOMPARE(textOfWidget(user.find<QWidget>("doubleSpinBox_frequency")), "10..500:77");
                raiseFrequency(user);
            });
        }
        QCOMPARE(host.replay().problem(), QString());
    }
    writeFile(file, QByteArray(text).replace("get synccard mode t02", "get synccard mode t03"));
    DevelopmentHost differing(replaying);
    QVERIFY(differing.start());
    open(differing, raiseFrequency, DialogUser::NotShown);
    const QString expected = R"(%1:%2: expected "get synccard mode t03", found "get synccard mode t02")";
    QCOMPARE(differing.replay().problem(), expected.arg(file).arg(text.left(text.indexOf("mode t02")).count('\n') + 1));
    QCOMPARE(differing.rewindReplay(), QString());
    QVERIFY(differing.replay().progress().endsWith(", next: get config is_changeable"));
}

/** The tree refuses impossible values. A protocol that crosses 0.13 loads the module again. */
void TestWorkbench::editsTheController()
{
    DevelopmentHost host{HostSetup()};
    QVERIFY(host.start());
    ControllerModel model(&host);
    const QAbstractItemModelTester tester(&model);
    QString problem;
    connect(&model, &ControllerModel::edited, this, [&](const QString& said) { problem = said; });
    const auto edit = [&](const char* name, const QVariant& value) {
        const QStandardItem* item = model.findItems(name, Qt::MatchRecursive | Qt::MatchStartsWith).constFirst();
        model.setData(item->index().siblingAtColumn(1), value);
        return item->text() + ' ' + item->index().siblingAtColumn(1).data().toString() + ' ' + problem;
    };
    QCOMPARE(edit("locked", true), "locked * true ");
    QCOMPARE(iconSizes(host), {QSize(48, 48)});
    QCOMPARE(edit("frequency", "75.5"), "frequency * 75.5 ");
    QCOMPARE(edit("divisor", "x"), "divisor 1 cards 1, divisor: a number from 1 to 100 is expected");
    const auto* delay = model.findItems("delay", Qt::MatchRecursive).constFirst();
    QCOMPARE(delay->index().siblingAtColumn(ControllerModel::UnitColumn).data().toString(), "ms");
    const auto* mode = model.findItems("activeMode", Qt::MatchRecursive).constFirst();
    const std::unique_ptr<QWidget> editor(
        ControllerPane(&host)
            .itemDelegateForColumn(ControllerModel::ValueColumn)
            ->createEditor(nullptr, {}, mode->index().siblingAtColumn(ControllerModel::ValueColumn)));
    const auto* box = qobject_cast<QComboBox*>(editor.get());
    QCOMPARE(textOfWidget(box), "*none=|cam100=|cam200=|genlock=|slave= hidden");
    QVERIFY(!box->isEditable());
    model.markFromNow();
    QCOMPARE(edit("locked", false), "locked * false ");
    QCOMPARE(iconSizes(host), host.window().windowIcon().availableSizes());
    QCOMPARE(edit("protocol", "1.10"), "protocol * 1.10.0 ");
    open(host, [](const DialogUser& user) {
        user.choose("comboBox_source", "video");
        user.leave("OK");
    });
    QTRY_COMPARE(model.findItems("source *", Qt::MatchRecursive).size(), 1);
    QPointer<QAction> entry(host.entry().menu_entry);
    open(host, [&](const DialogUser& user) {
        QVERIFY(edit("protocol", "0.12.7").contains("close the dialog first"));
        user.leave("Escape");
    });
    QVERIFY(entry);
    QCOMPARE(edit("protocol", "0.12.7"), "protocol * 0.12.7 ");
    QVERIFY(!entry);
    open(host, [](const DialogUser& user) { user.leave("Escape"); });
}

/** Clicks reach the workbench while the dialog is open, and the main window does not close then. */
void TestWorkbench::staysUsableBesideTheDialog()
{
    HostSetup failing;
    failing.failing.setPattern("model_desc 0x0405|has_output");
    DevelopmentHost host(failing);
    Workbench workbench(&host);
    QVERIFY(host.start());
    workbench.show();
    for (const char* name : {"commands", "reports"}) {
        QAbstractItemModel* shown = workbench.findChild<QTableView*>(name)->model();
        while (const auto* proxy = qobject_cast<QSortFilterProxyModel*>(shown))
            shown = proxy->sourceModel();
        new QAbstractItemModelTester(shown, &workbench);
    }
    auto* tabs = workbench.findChild<QTabBar*>();
    const auto rows = [&](const char* table) { return workbench.findChild<QTableView*>(table)->model()->rowCount(); };
    open(host, raiseFrequency, DialogUser::NotShown);
    QCOMPARE(rows("reports"), 1);
    host.faults().failMatching(QRegularExpression("has_output"));
    open(host, [&](const DialogUser& user) {
        QTest::mouseClick(workbench.windowHandle(), Qt::LeftButton, {},
                          tabs->mapTo(&workbench, tabs->tabRect(1).center()));
        QCOMPARE(tabs->currentIndex(), 1);
        host.window().close();
        QVERIFY(host.window().isVisible());
        user.leave("Escape");
    });
    open(host, [](const DialogUser& user) { user.leave("Escape"); });
    QCOMPARE(rows("reports"), 4);
    QCOMPARE(workbench.findChild<QTableView*>("reports")->model()->index(3, 4).data().toString(), "2");
    QTRY_VERIFY(rows("commands") > 60);
    tabs->setCurrentIndex(0);
    QTest::keyClicks(workbench.findChild<QLineEdit*>(), "FAILED");
    QCOMPARE(rows("commands"), 7);
    workbench.findChildren<QPushButton*>().constLast()->click();
    QCOMPARE(rows("commands"), 0);
    auto* measurement = host.window().findChild<QAction*>("measurement");
    measurement->trigger();
    QVERIFY(!host.entry().menu_entry->isEnabled());
    measurement->trigger();
    QVERIFY(host.entry().menu_entry->isEnabled());
}

void TestWorkbench::logsOpeningAndExit()
{
    DevelopmentHost host{HostSetup()};
    Workbench workbench(&host);
    QVERIFY(host.start());
    workbench.findChildren<QCheckBox*>().constLast()->click(); // "wait in an event loop"
    host.faults().setLatency(1);
    QStringList steps;
    connect(workbench.findChild<StepCounter*>(), &StepCounter::counted, this,
            [&](auto& text) { steps += text.section(',', 0, 0); });
    open(host, raiseFrequency);
    QCOMPARE(steps, QStringList({"Opening: 40 commands", "OK: 14 commands"}));
    auto* table = workbench.findChild<QTableView*>("commands");
    QTRY_COMPARE(table->model()->rowCount(), 54);
    workbench.findChild<QCheckBox*>()->click(); // "Hide polls"
    QVERIFY(table->model()->rowCount() >= 56);
    table->setFocus();
    table->selectRow(1);
    workbench.show();
    QVERIFY(QTest::qWaitForWindowActive(&workbench));
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    static const QRegularExpression copied(R"(^# Development Host .*\nTime\t.*\n\S+\tget\tsynccard available\t.*\n$)");
    QVERIFY(copied.match(QApplication::clipboard()->text()).hasMatch());
    const QTemporaryDir folder;
    for (const char* file : {"missing/a", "a"}) {
        const QString path = folder.filePath(file);
        workbench.findChild<CommandPane*>()->save(path);
        QCOMPARE(workbench.findChild<QLabel*>("message")->text(),
                 *file == 'a' ? "Saved to " + path : path + ": No such file or directory");
    }
    auto* latency = workbench.findChildren<QSpinBox*>().constLast();
    for (const int expected : {0, 100}) {
        QWheelEvent wheel({}, {}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(latency, &wheel);
        QCOMPARE(latency->value(), expected);
        latency->setFocus();
    }
}

QTEST_MAIN(TestWorkbench)
#include "tst_workbench.moc"
