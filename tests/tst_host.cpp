#include "Bench.h"
#include "ControllerFile.h"
#include "DevelopmentHost.h"
#include "HostOptions.h"
#include "StateDifference.h"

#include <QJsonArray>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>

/** The development host: its controller, channel, files, loader and command line. */
class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void movesWithTheSource();
    void formatsWithoutLocale();
    void refusesLongAnswers();
    void readsControllerFiles_data();
    void readsControllerFiles();
    void namesWhatIsWrong();
    void opensControllers_data();
    void opensControllers();
    void placesTheEntry();
};

/** Rows of two texts from a file of tests/data: "left -> right". */
void addRows(const char* name)
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QFile file(QString(DATA_DIR "/") + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const int arrow = line.indexOf(" ->");
        if (!line.startsWith('#') && arrow > 0)
            QTest::newRow(line.left(arrow)) << line.left(arrow).replace("\\n", "\n") << line.mid(arrow + 4);
    }
}

void TestHost::answers_data()
{
    addRows("controller-answers.txt");
}

void TestHost::answers()
{
    QFETCH(QByteArray, left);
    const QByteArray& command = left;
    SimulatedController controller(ControllerState::builtIn());
    const ControllerReply reply = controller.execute("zorvan2 " + command);
    const QByteArray value = command.startsWith("set") ? "ok" : reply.line.mid(command.size() + 9);
    QTEST(reply.ok ? value : "failed", "right");
    ControllerState locked = ControllerState::builtIn();
    locked.locked = true;
    controller.setState(locked);
    QVERIFY(command.startsWith("get") || !controller.execute("zorvan2 " + command).ok);
    locked.protocol = VersionInfo(0, 7, 9);
    controller.setState(locked);
    QVERIFY(!controller.execute("zorvan2 " + command).ok);
}

/** What is set is read back; a source that allows less takes divisor and output along. */
void TestHost::movesWithTheSource()
{
    DevelopmentHost host{HostSetup()};
    const auto set = [&](const char* command) {
        return host.controller.execute("zorvan2 set synccard " + QByteArray(command)).ok;
    };
    QVERIFY(set("external_divisor d01 40") && set("output d01 ttlinv") && set("source d01 video"));
    QVERIFY(set("output_delay d02 ch04 1.5") && set("output_during_idle d02 ch04 yes"));
    const CardState& card = host.controller.state().cards.at(0);
    QCOMPARE(QString("%1 %2 %3").arg(card.source).arg(card.divisor).arg(card.output), "video 10 none");
    const ChannelState& channel = host.controller.state().cards.at(1).channels.at(3);
    QVERIFY(channel.delay == 1.5 && channel.activeDuringIdle);
    QCOMPARE(firstDifference(QJsonArray{1, 2}, QJsonArray{1, 3}), "[1]: 2 expected, 3 found");
}

void TestHost::formatsWithoutLocale()
{
    if (qEnvironmentVariableIsSet("LOCPATH"))
        QCOMPARE(QByteArray(localeconv()->decimal_point), QByteArray(","));
    SimulatedController controller(ControllerState::builtIn());
    ControllerChannel channel(&controller);
    QByteArray command;
    connect(&channel, &ControllerChannel::executed, this,
            [&](const CommandRecord& record) { command = record.command; });
    QCOMPARE(channel.setParameter("synccard internal_frequency d%2.2d %.6f", 1, 59.94), 0);
    QCOMPARE(command, QByteArray("synccard internal_frequency d01 59.940000"));
    double frequency = 0.0;
    QCOMPARE(channel.getParameterDouble(&frequency, "synccard internal_frequency d01"), 0);
    QCOMPARE(frequency, 59.94);
    int number = 7;
    QVERIFY(channel.getParameterInt(&number, "synccard output d01") != 0);
    bool flag = false;
    QVERIFY(channel.getParameterBool(&flag, "synccard output d01") != 0);
}

/** An answer that just fits is taken whole, one character more fails. */
void TestHost::refusesLongAnswers()
{
    ControllerState state = ControllerState::builtIn();
    SimulatedController controller(state);
    ControllerChannel channel(&controller);
    char answer[200];
    for (const bool fits : {true, false}) {
        state.input = QString(fits ? 199 : 200, 'x');
        state.cards[0].output = QString(fits ? 99 : 100, 'y');
        controller.setState(state);
        QCOMPARE(channel.getParameter(answer, "synccard input_frequency") == 0, fits);
        QVERIFY(!fits || answer == state.input);
        QCOMPARE(channel.getParameter(answer, "synccard output d01") == 0, fits);
        QVERIFY(!fits || answer == state.cards[0].output);
    }
}

void TestHost::readsControllerFiles_data()
{
    addRows("controller-files.txt");
}

void TestHost::readsControllerFiles()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QTemporaryDir folder;
    QFile file(folder.filePath("controller.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(left);
    file.close();
    ControllerState state = ControllerState::builtIn();
    const QJsonObject before = state.toJson();
    QString found;
    QCOMPARE(readControllerFile(file.fileName(), &state, &found), right.isEmpty());
    QCOMPARE(found, right.isEmpty() ? QString() : file.fileName() + ": " + right);
    QVERIFY(right.isEmpty() || state.toJson() == before);
}

/** A mistake on the command line is one line that names place and remedy, and exit status 2. */
void TestHost::namesWhatIsWrong()
{
    const QString noModule = ": expected a module plug-in \"org.zorvan.Zorvan2.SnyccardSettingsModule\", found ";
    const QString noInterface =
        ": expected an object with the interface \"org.zorvan.zorvan2.gui.Module/0.2.0\", found ";
    const QMap<QString, QString> lines = {
        {"--help", ""},
        {"--version", ""},
        {"--list", ""},
        {"--colour", "Unknown option 'colour'. See --help."},
        {"--replay=a --record=./a", "./a: --record would overwrite what --replay reads"},
        {"--latency=5001", "--latency 5001: milliseconds from 0 to 5000 are expected"},
        {"--fail=(", "--fail (: missing closing parenthesis"},
        {"--record=", "--record: a file is expected"},
        {"--replay=a --fail=b", "--fail: a replay fails what was recorded as failed"},
        {"--replay=/none", "/none: No such file or directory"},
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
        QCOMPARE(host.exitCode(), line.value().isEmpty() ? 0 : 2);
        const QString expected = line.value().isEmpty() ? QString() : "synccard-host: " + line.value() + '\n';
        QCOMPARE(QString(host.readAllStandardError()), expected);
    }
}

void TestHost::opensControllers_data()
{
    addRows("controllers.txt");
}

/** What a controller of the list shows in its dialog, or answers to a set. */
void TestHost::opensControllers()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    failOnWarnings();
    const QByteArray asked = right.left(right.indexOf(':'));
    HostSetup wanted;
    QString seen;
    QVERIFY2(readControllerFile(HostOptions::controllerFolder() + '/' + left + ".json", &wanted.state, &seen),
             qPrintable(seen));
    DevelopmentHost host(wanted);
    QVERIFY2(host.start(), qPrintable(host.errorString()));
    const DialogUser user(qobject_cast<QDialog*>(host.loader.module()->get_gui_elements().first()->content));
    const auto open = [&] { QMetaObject::invokeMethod(user.dialog(), "update_and_exec"); };
    const auto look = [&] {
        const bool isTaken = host.controller.execute("zorvan2 " + asked).ok;
        seen = asked.startsWith("set") ? (isTaken ? "ok" : "failed") : textOfWidget(user.find<QWidget>(asked));
        user.leave("Escape");
    };
    QCOMPARE(user.openBy(open, look), DialogUser::Closed);
    QCOMPARE(asked + ": " + seen.toUtf8(), right);
}

void TestHost::placesTheEntry()
{
    DevelopmentHost host{HostSetup()};
    QMenuBar* bar = host.window.menuBar();
    bar->addMenu("Late")->menuAction()->setProperty("orderNumber", 300);
    QVERIFY2(host.start(), qPrintable(host.errorString()));
    QStringList titles;
    const QList<QAction*> actions = bar->actions();
    for (const QAction* action : actions)
        titles.append(action->text());
    QCOMPARE(titles.indexOf("H&ardware") + 1, titles.indexOf("Late"));
}

QTEST_MAIN(TestHost)
#include "tst_host.moc"
