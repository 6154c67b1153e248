#include "DevelopmentHost.h"
#include "Files.h"
#include "LoadedModule.h"
#include "NamedControllers.h"

#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/** The development host: its loader and command line, and the named controllers. */
class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void namesWhatIsWrong();
    void prints();
    void opensControllers_data();
    void opensControllers();
    void placesTheEntry();
};

/** A mistake on the command line prints one line with place and remedy, and ends with status 2. */
void TestHost::namesWhatIsWrong()
{
    const QString noModule = ": expected a module plug-in \"" MODULE_IDENTIFIER "\", found ";
    const QString noInterface =
        ": expected an object with the interface \"org.zorvan.zorvan2.gui.Module/0.2.0\", found ";
    const QMap<QString, QString> lines = {
        {"--colour", "Unknown option 'colour'. See --help."},
        {"--record=" HOST_PROGRAM, HOST_PROGRAM ": this file exists; name another one, or remove it first"},
        {"--plugin=", "--plugin: a file is expected"},
        {"--replay=a --protocol=1.2", "--protocol: not with --replay, which takes the protocol from the recording"},
        {"--replay=a --controller=full", "--controller: not with --replay, which answers like the recorded controller"},
        {"--latency=5001", "--latency 5001: milliseconds from 0 to 5000 are expected"},
        {"--fail=(", "--fail (: missing closing parenthesis"},
        {"--record=", "--record: a file is expected"},
        {"--replay=a --fail=b",
         "--fail: not with --replay, which fails the commands that failed when they were recorded"},
        {"--replay=/none", "/none: No such file or directory"},
        {"--language=fr", "--language fr: no SynccardSettingsModule_fr.qm beside the plug-in"},
        {"x", "Unexpected argument 'x'. See --help."},
        {"--protocol=1", "--protocol 1: a version such as 1.23 or 1.23.0 is expected"},
        {"--controller=/none", "/none: No such file or directory"},
        {"--controller=none", "--controller none: no such controller, see --list"},
        {"--controller=none.json", "none.json: No such file or directory"},
        {"--plugin=/none.so", "/none.so" + noModule + "no such file"},
        {"--plugin=" HOST_PROGRAM, HOST_PROGRAM + noModule + "no Qt plug-in"},
        {"--plugin=" OTHER_PLUGIN, OTHER_PLUGIN + noModule + "\"org.example.Other\""},
        {"--plugin=" NO_MODULE, NO_MODULE + noInterface + "NoModule without it"}};
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        QProcess host;
        host.start(HOST_PROGRAM, line.key().split(' '));
        QVERIFY(host.waitForFinished());
        QCOMPARE(host.exitCode(), 2);
        QCOMPARE(QString(host.readAllStandardError()), "synccard-host: " + line.value() + '\n');
    }
}

/** What --version and --help print: data/help.txt. */
void TestHost::prints()
{
    QFile file(DATA_DIR "/help.txt");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray expected = file.readAll().replace("VERSION", PROJECT_VERSION).replace("PROGRAM", HOST_PROGRAM);
    QByteArray found;
    for (const char* option : {"--version", "--help"}) {
        QProcess host;
        host.start(HOST_PROGRAM, {option});
        QVERIFY(host.waitForFinished());
        QCOMPARE(host.exitCode(), 0);
        found += host.readAllStandardOutput() + host.readAllStandardError();
    }
    QCOMPARE(found.split('\n'), expected.split('\n'));
}

void TestHost::opensControllers_data()
{
    addRows("controllers.txt");
}

/** Each named controller shows one thing in the dialog, or answers one set, that it exists for. */
void TestHost::opensControllers()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    failOnWarnings();
    const QByteArray asked = right.left(right.indexOf(':'));
    HostSetup wanted;
    QString seen = readController(left, &wanted);
    QCOMPARE(seen, QString());
    DevelopmentHost host(wanted);
    QVERIFY2(host.start(), qPrintable(host.errorString()));
    const DialogUser user(host.dialog());
    const auto open = [&] { QMetaObject::invokeMethod(user.dialog(), "update_and_exec"); };
    const auto look = [&] {
        QByteArray line;
        const bool isTaken =
            SimulatedController(host.controller().state()).execute(Operation::Send, "zorvan2 " + asked, &line);
        seen = asked.startsWith("set") ? (isTaken ? "ok" : "failed") : textOfWidget(user.find<QWidget>(asked));
        user.leave("Escape");
    };
    QCOMPARE(user.openBy(open, look), DialogUser::Closed);
    QCOMPARE(asked + ": " + seen.toUtf8(), right);
}

void TestHost::placesTheEntry()
{
    HostSetup german;
    german.language = QLocale("de");
    DevelopmentHost host(german);
    QMenuBar* bar = host.window().menuBar();
    QVERIFY2(host.start(), qPrintable(host.errorString()));
    QStringList titles;
    const QList<QAction*> actions = bar->actions();
    for (const QAction* action : actions)
        titles.append(action->text());
    QCOMPARE(titles, QStringList({"Ho&st", "&Recording", "&Controller", "H&ardware", "&Help"}));
    QCOMPARE(host.dialog()->windowTitle(), "Synccard-Einstellungen");
}

QTEST_MAIN(TestHost)
#include "tst_host.moc"
