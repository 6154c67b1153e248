#include "ControllerChannel.h"
#include "ControllerFile.h"
#include "Faults.h"
#include "Files.h"
#include "Recording.h"
#include "SimulatedController.h"
#include "StateTree.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <clocale>

/** The simulated controller and its files, the command channel, the faults below it, recordings, and versions. */
class TestController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void comparesVersions();
    void answers_data() { addRows("controller-answers.txt"); }
    void answers();
    void describesEveryField();
    void readsControllerFiles_data() { addRows("controller-files.txt"); }
    void readsControllerFiles();
    void refusesAnswers();
    void breaksCommands();
    void readsRecordings_data() { addTexts("recordings.txt"); }
    void readsRecordings();
};

/** The second run of each program must really have a decimal comma. */
void TestController::initTestCase()
{
    QCOMPARE(*localeconv()->decimal_point, qEnvironmentVariableIsSet("LOCPATH") ? ',' : '.');
}

void TestController::comparesVersions()
{
    const QVector<VersionInfo> ascending = {{-1, 5, 5}, {0, 8, -2}, {0, 8, -1}, {0, 8, 0}, {0, 13, -1}, {1, 0, 0}};
    for (const VersionInfo& a : ascending) {
        for (const VersionInfo& b : ascending)
            QCOMPARE((QList<bool>{a == b, a != b, a > b, a >= b, a < b, a <= b}),
                     (QList<bool>{&a == &b, &a != &b, &a > &b, &a >= &b, &a < &b, &a <= &b}));
    }
}

/** The last of some commands is answered or taken as the table says; a locked or too old controller takes no set. */
void TestController::answers()
{
    QFETCH(QByteArray, left);
    SimulatedController controller(ControllerState::builtIn());
    QByteArray line;
    const auto execute = [&](const QString& command) {
        return controller.execute(Operation::Send, "zorvan2 " + command.toLatin1(), &line);
    };
    const QStringList commands = QString(left).split("; ");
    bool isTaken = false;
    for (const QString& command : commands)
        isTaken = execute(command);
    const bool isSet = commands.last().startsWith("set");
    const QByteArray value = isSet ? "ok" : line.mid(commands.last().size() + 9);
    QTEST(isTaken ? value : "failed", "right");
    ControllerState locked = ControllerState::builtIn();
    locked.locked = true;
    controller.setState(locked);
    QVERIFY(!isSet || !execute(commands.last()));
    locked.protocol = VersionInfo(0, 7, 9);
    controller.setState(locked);
    QVERIFY(!execute(commands.last()));
}

/** The table of docs/workbench.md names each field at its place. One that is added to a record without a rule fails to
 * build here, or to pass. */
void TestController::describesEveryField()
{
    const ControllerState state = ControllerState::builtIn();
    [[maybe_unused]] const auto& [s1, s2, s3, s4, s5, s6, modes, s8, cards, s10] = state;
    [[maybe_unused]] const auto& [m1, m2] = modes.first();
    [[maybe_unused]] const auto& [c1, c2, c3, sources, c5, c6, c7, c8, c9, c10, channels] = cards.first();
    [[maybe_unused]] const auto& [o1, o2, outputs] = sources.first();
    [[maybe_unused]] const auto& [h1, h2] = channels.first();
    static const QRegularExpression number(" \\d+|:.*");
    QStringList described = toTree(state).toLines().replaceInStrings(number, "");
    described.removeDuplicates();
    QCOMPARE(described.size(), 10 - 2 + 2 + 11 - 2 + 3 + 2); // the fields above, but for the four lists of records
    QStringList documented;
    static const QRegularExpression row("^\\| `([^`]+)`", QRegularExpression::MultilineOption);
    auto rows = row.globalMatch(readFile(DATA_DIR "/../../docs/workbench.md"));
    while (rows.hasNext())
        documented.append(rows.next().captured(1));
    QCOMPARE(documented, described);
}

/** What is refused changes nothing; a file that names everything is what the controller is then. */
void TestController::readsControllerFiles()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    const QTemporaryDir folder;
    const QString file = folder.filePath("controller.json");
    writeFile(file, left);
    ControllerState state = ControllerState::builtIn();
    const ControllerState before = state;
    const bool isGood = right == "taken" || right == "whole";
    QCOMPARE(readControllerFile(file, &state), isGood ? QString() : file + ": " + right);
    QVERIFY(isGood || toTree(before).toLines() == toTree(state).toLines());
    QVERIFY(right != "whole" || toTree(state).toJson() == QJsonDocument::fromJson(left).object());
}

/** A text that just fits is taken whole, one character more fails; so does a text in place of a number or flag. */
void TestController::refusesAnswers()
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
    int number = 0;
    bool flag = false;
    QVERIFY(channel.getParameterInt(&number, "synccard source d01") != 0);
    QVERIFY(channel.getParameterBool(&flag, "synccard source d01") != 0);
}

void TestController::breaksCommands()
{
    SimulatedController controller(ControllerState::builtIn());
    Faults faults(&controller);
    const auto outcomes = [&] {
        QByteArray text;
        QByteArray answer;
        for (const char* command : {"synccard available", "synccard source d01", "synccard output d01"})
            text += faults.execute(Operation::Get, command, &answer) ? 'y' : 'n';
        return text;
    };
    QCOMPARE(outcomes(), QByteArray("yyy"));
    faults.failNth(2);
    QCOMPARE(outcomes(), QByteArray("yny"));
    QCOMPARE(outcomes(), QByteArray("yyy"));
    faults.failMatching(QRegularExpression("d0[12]$"));
    faults.setLatency(20);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(outcomes(), QByteArray("ynn"));
    QVERIFY(timer.elapsed() >= 60);
    bool hasTimedOut = false;
    QTimer::singleShot(0, this, [&] { hasTimedOut = true; });
    faults.waitInEventLoop(true);
    QCOMPARE(outcomes(), QByteArray("ynn"));
    QVERIFY(hasTimedOut);
}

/** A whole recording and damaged ones, with the line ends of another system; what is whole is written as it was read.
 */
void TestController::readsRecordings()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    const QTemporaryDir folder;
    const QString file = folder.filePath("a");
    left.replace("\\e", "\xE4").replace("\\0", QByteArray(1, '\0')).replace('\n', "\r\n");
    writeFile(file, left.contains("\\c") ? left.left(left.indexOf("\\c")) : left);
    QVector<RecordedLine> lines;
    QCOMPARE(readRecording(file, &lines), right == "whole" ? QString() : file + ':' + right);
    QVERIFY(right != "whole" || left.contains(lines.last().toLine(1234).trimmed() + "\r\n"));
}

QTEST_MAIN(TestController)
#include "tst_controller.moc"
