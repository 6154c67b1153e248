#include "DevelopmentHost.h"
#include "Files.h"
#include "LoadedModule.h"
#include "MainWindow.h"

#include <QProcess>

/** The development host's program, and the named controllers. */
class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void namesWhatIsWrong_data() { addRows("options.txt"); }
    void namesWhatIsWrong();
    void prints();
    void opensControllers_data() { addRows("controllers.txt"); }
    void opensControllers();
};

namespace {

/** \a text with this build's own in place of the words in capitals. */
QByteArray filled(QByteArray text)
{
    text.replace("PROGRAM", HOST_PROGRAM).replace("OTHER_PLUGIN", OTHER_PLUGIN).replace("NO_MODULE", NO_MODULE);
    return text.replace("MODULE_IDENTIFIER", MODULE_IDENTIFIER);
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

/** These need no display. The list stands alone on standard output. */
void TestHost::prints()
{
    QCOMPARE(run("--version"), QByteArrayList({"0", "synccard-host " PROJECT_VERSION "\n", ""}));
    const QByteArrayList list = run("-platform none --list");
    QVERIFY(list.at(1).startsWith("external-ttl "));
    QCOMPARE(list.at(0) + list.at(2), QByteArray("0"));
}

/** Each named controller shows one thing in the dialog, or answers one write, that it exists for. */
void TestHost::opensControllers()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    failOnWarnings();
    const QByteArray asked = right.left(right.indexOf(':'));
    HostSetup wanted;
    QString seen = readController(left, &wanted.controller);
    QCOMPARE(seen, QString());
    DevelopmentHost host(wanted);
    MainWindow window(&host);
    QCOMPARE(host.start(&window), QString());
    const DialogUser user(host.dialog());
    const auto open = [&] { QMetaObject::invokeMethod(user.dialog(), "update_and_exec"); };
    const auto look = [&] {
        QByteArray line;
        const bool isTaken =
            SimulatedController(host.controller().table()).execute(Operation::Send, "zorvan2 " + asked, &line);
        seen = asked.startsWith("set") ? (isTaken ? "ok" : "failed") : textOfWidget(user.find<QWidget>(asked));
        user.leave("Escape");
    };
    QCOMPARE(user.openBy(open, look), DialogUser::Closed);
    QCOMPARE(asked + ": " + seen.toUtf8(), right);
}

QTEST_MAIN(TestHost)
#include "tst_host.moc"
