#include "ControllerFile.h"
#include "Files.h"
#include "SimulatedController.h"
#include "StateTree.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** The simulated controller: what it answers, its state, and the files it is read from. */
class TestController : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void movesWithTheSource();
    void describesEveryField();
    void documentsEveryField();
    void readsControllerFiles_data();
    void readsControllerFiles();
};

void TestController::answers_data()
{
    addRows("controller-answers.txt");
}

void TestController::answers()
{
    QFETCH(QByteArray, left);
    const QByteArray& command = left;
    SimulatedController controller(ControllerState::builtIn());
    QByteArray line;
    const bool isTaken = controller.execute(Operation::Send, "zorvan2 " + command, &line);
    const QByteArray value = command.startsWith("set") ? "ok" : line.mid(command.size() + 9);
    QTEST(isTaken ? value : "failed", "right");
    ControllerState locked = ControllerState::builtIn();
    locked.locked = true;
    controller.setState(locked);
    QVERIFY(command.startsWith("get") || !controller.execute(Operation::Send, "zorvan2 " + command, &line));
    locked.protocol = VersionInfo(0, 7, 9);
    controller.setState(locked);
    QVERIFY(!controller.execute(Operation::Send, "zorvan2 " + command, &line));
}

/** What is set is read back; a source that allows less takes divisor and output along. */
void TestController::movesWithTheSource()
{
    SimulatedController controller(ControllerState::builtIn());
    const auto set = [&](const char* command) {
        QByteArray answer;
        return controller.execute(Operation::Set, "synccard " + QByteArray(command), &answer);
    };
    for (const char* command : {"external_divisor d01 40", "output d01 ttlinv", "source d01 video",
                                "output_delay d02 ch04 1.5", "output_during_idle d02 ch04 yes"})
        QVERIFY2(set(command), command);
    const CardState& card = controller.state().cards.at(0);
    QCOMPARE(QString("%1 %2 %3").arg(card.source).arg(card.divisor).arg(card.output), "video 10 none");
    const ChannelState& channel = controller.state().cards.at(1).channels.at(3);
    QCOMPARE(channel.delay, 1.5);
    QVERIFY(channel.activeDuringIdle);
}

/** A state in which each field of each record differs from its default. */
static ControllerState otherState()
{
    const QVector<SourceState> sources = {{"video", 7, {"ttl"}}};
    const CardState card = {"0x0301", "7", "Card", sources, "video", 90.0, 80.0, 3, "ttl", 200.0, {{1.5, true}}};
    const VersionInfo protocol(1, 22, 3);
    return {"Other", protocol, "FERNBANK", true, true, "ttl 50", {{"slow", "Slow"}}, "slow", {card}, false};
}

/** Each field is written and read back. One that is added to a record without a rule fails to build here, or to pass.
 */
void TestController::describesEveryField()
{
    const ControllerState written = otherState();
    ControllerState read;
    QString error;
    QVERIFY2(readState(toTree(written).toJson(), &read, &error), qPrintable(error));
    QCOMPARE(toTree(read).toLines(), toTree(written).toLines());
    ControllerState plain;
    plain.modes = {{}};
    plain.cards = {{}};
    plain.cards[0].sources = {{{}, SourceState().maxDivisor, {"none"}}};
    plain.cards[0].channels = {{}};
    const QStringList defaults = toTree(plain).toLines();
    const QStringList lines = toTree(read).toLines();
    for (const QString& line : lines)
        QVERIFY2(!defaults.contains(line), qPrintable(line));
    [[maybe_unused]] const auto& [s1, s2, s3, s4, s5, s6, modes, s8, cards, s10] = read;
    [[maybe_unused]] const auto& [m1, m2] = modes.first();
    [[maybe_unused]] const auto& [c1, c2, c3, sources, c5, c6, c7, c8, c9, c10, channels] = cards.first();
    [[maybe_unused]] const auto& [o1, o2, outputs] = sources.first();
    [[maybe_unused]] const auto& [h1, h2] = channels.first();
    QCOMPARE(defaults.size(), 10 - 2 + 2 + 11 - 2 + 3 + 2); // the fields above, but for the four lists of records
}

/** The table of docs/workbench.md names each field in the description's order. */
void TestController::documentsEveryField()
{
    QFile page(DATA_DIR "/../../docs/workbench.md");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QStringList documented;
    static const QRegularExpression row("^\\| `([^`]+)`", QRegularExpression::MultilineOption);
    auto rows = row.globalMatch(page.readAll());
    while (rows.hasNext())
        documented.append(rows.next().captured(1));
    QStringList described;
    static const QRegularExpression number(" \\d+");
    const QStringList lines = toTree(otherState()).toLines();
    for (const QString& line : lines)
        described.append(line.section(':', 0, 0).remove(number));
    QCOMPARE(documented, described);
}

void TestController::readsControllerFiles_data()
{
    addRows("controller-files.txt");
}

void TestController::readsControllerFiles()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QTemporaryDir folder;
    const QString file = folder.filePath("controller.json");
    writeFile(file, left);
    ControllerState state = ControllerState::builtIn();
    const ControllerState before = state;
    QString found;
    QCOMPARE(readControllerFile(file, &state, &found), right.isEmpty());
    QCOMPARE(found, right.isEmpty() ? QString() : file + ": " + right);
    QVERIFY(right.isEmpty() || toTree(before).toLines() == toTree(state).toLines());
}

QTEST_APPLESS_MAIN(TestController)
#include "tst_controller.moc"
