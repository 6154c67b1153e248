#include "ControllerFile.h"
#include "DevelopmentHost.h"
#include "Files.h"
#include "LoadedModule.h"
#include "StateTree.h"

#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>

/** The development host: its loader and command line, and the named controllers. */
class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void namesWhatIsWrong_data() { addRows("options.txt"); }
    void namesWhatIsWrong();
    void prints();
    void opensControllers_data() { addRows("controllers.txt"); }
    void opensControllers();
    void placesTheEntry();
};

namespace {

/** \a text with this build's own in place of the words in capitals. */
QByteArray filled(QByteArray text)
{
    text.replace("VERSION", PROJECT_VERSION).replace("PROGRAM", HOST_PROGRAM);
    return text.replace("OTHER_PLUGIN", OTHER_PLUGIN)
        .replace("NO_MODULE", NO_MODULE)
        .replace("MODULE_IDENTIFIER", MODULE_IDENTIFIER);
}

/** The host's exit status with \a options, standard output and standard error. */
QByteArrayList run(const QByteArray& options)
{
    QProcess host;
    host.start(HOST_PROGRAM, QString(options).split(' '));
    host.waitForFinished();
    return {QByteArray::number(host.exitCode()), host.readAllStandardOutput(), host.readAllStandardError()};
}

} // namespace

/** A mistake on the command line prints one line with place and remedy, and ends with status 2. */
void TestHost::namesWhatIsWrong()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QCOMPARE(run(filled(left)), QByteArrayList({"2", "", "synccard-host: " + filled(right) + '\n'}));
}

/** What --version and --help print: data/help.txt. */
void TestHost::prints()
{
    const QByteArrayList version = run("--version");
    const QByteArrayList help = run("--help");
    const QByteArrayList expected = filled(readFile(DATA_DIR "/help.txt")).split('\n');
    QCOMPARE((version.at(1) + help.at(1)).split('\n'), expected);
    QCOMPARE(version.at(0) + version.at(2) + help.at(0) + help.at(2), "00");
}

/** Each named controller shows one thing in the dialog, or answers one set, that it exists for. Saved, it stays the
 * same. */
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
    const QTemporaryDir folder;
    HostSetup saved;
    QCOMPARE(saveControllerFile(folder.filePath("a.json"), wanted.state), QString());
    QCOMPARE(readController(folder.filePath("a.json"), &saved), QString());
    QCOMPARE(toTree(saved.state).toLines(), toTree(wanted.state).toLines());
}

void TestHost::placesTheEntry()
{
    DevelopmentHost host{HostSetup()};
    QMenuBar* bar = host.window().menuBar();
    QVERIFY2(host.start(), qPrintable(host.errorString()));
    QStringList titles;
    const QList<QAction*> actions = bar->actions();
    for (const QAction* action : actions)
        titles.append(action->text());
    QCOMPARE(titles, QStringList({"Ho&st", "&Recording", "&Controller", "H&ardware", "&Help"}));
}

QTEST_MAIN(TestHost)
#include "tst_host.moc"
