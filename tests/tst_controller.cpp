#include "ControllerFile.h"
#include "Files.h"
#include "SimulatedController.h"
#include "StateTree.h"

#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** The simulated controller: what it answers, its state, the files it is read from, and its versions. */
class TestController : public QObject
{
    Q_OBJECT

private slots:
    void comparesVersions();
    void parsesVersions();
    void answers_data() { addRows("controller-answers.txt"); }
    void answers();
    void describesEveryField();
    void readsControllerFiles_data() { addRows("controller-files.txt"); }
    void readsControllerFiles();
};

void TestController::comparesVersions()
{
    const QVector<VersionInfo> ascending = {{-1, 5, 5}, {0, 8, -2}, {0, 8, -1}, {0, 8, 0}, {0, 13, -1}, {1, 0, 0}};
    for (const VersionInfo& a : ascending) {
        for (const VersionInfo& b : ascending)
            QCOMPARE((QList<bool>{a == b, a != b, a > b, a >= b, a < b, a <= b}),
                     (QList<bool>{&a == &b, &a != &b, &a > &b, &a >= &b, &a < &b, &a <= &b}));
    }
}

void TestController::parsesVersions()
{
    const QMap<QString, QString> versions = {
        {"1.23.4", "1.23.4"}, {"1.23", "1.23.0"}, {"0.13.-1", "0.13.-1"}, {"", ""},     {"1", ""},   {"1.2.3.4", ""},
        {"1.x", ""},          {"1. 2", ""},       {"+1.2", ""},           {"1.2 ", ""}, {"1.-", ""}, {"1..2", ""}};
    for (auto version = versions.begin(); version != versions.end(); ++version) {
        VersionInfo parsed(7, 8, 9);
        bool ok = version.value().isEmpty();
        parsed.fromString(version.key(), &ok);
        QCOMPARE(ok, !version.value().isEmpty());
        QCOMPARE(parsed.toString(), ok ? version.value() : "7.8.9");
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

/** A state in which each field of each record differs from its default. */
static ControllerState otherState()
{
    const QVector<SourceState> sources = {{"video", 7, {"ttl"}}};
    const CardState card = {"0x0301", "7", "Card", sources, "video", 90.0, 80.0, 3, "ttl", 200.0, {{1.5, true}}};
    const VersionInfo protocol(1, 22, 3);
    return {"Other", protocol, "FERNBANK", true, true, "ttl 50", {{"slow", "Slow"}}, "slow", {card}, false};
}

/**
 * Each field is written and read back, and the table of docs/workbench.md names it at its place. One that is added to a
 * record without a rule fails to build here, or to pass.
 */
void TestController::describesEveryField()
{
    const ControllerState written = otherState();
    const QStringList lines = toTree(written).toLines();
    ControllerState read;
    QString error;
    QVERIFY2(readState(toTree(written).toJson(), &read, &error), qPrintable(error));
    QCOMPARE(toTree(read).toLines(), lines);
    ControllerState plain;
    plain.modes = {{}};
    plain.cards = {{}};
    plain.cards[0].sources = {{{}, SourceState().maxDivisor, {"none"}}};
    plain.cards[0].channels = {{}};
    const QStringList defaults = toTree(plain).toLines();
    static const QRegularExpression number(" \\d+");
    QByteArrayList rows;
    for (const QString& line : lines) {
        QVERIFY2(!defaults.contains(line), qPrintable(line));
        rows.append("| `" + line.section(':', 0, 0).remove(number).toUtf8() + "` ");
    }
    [[maybe_unused]] const auto& [s1, s2, s3, s4, s5, s6, modes, s8, cards, s10] = read;
    [[maybe_unused]] const auto& [m1, m2] = modes.first();
    [[maybe_unused]] const auto& [c1, c2, c3, sources, c5, c6, c7, c8, c9, c10, channels] = cards.first();
    [[maybe_unused]] const auto& [o1, o2, outputs] = sources.first();
    [[maybe_unused]] const auto& [h1, h2] = channels.first();
    QCOMPARE(defaults.size(), 10 - 2 + 2 + 11 - 2 + 3 + 2); // the fields above, but for the four lists of records
    QByteArrayList documented = readFile(DATA_DIR "/../../docs/workbench.md").split('\n');
    const auto isOther = [&](const QByteArray& row) { return !row.startsWith("| `"); };
    documented.erase(std::remove_if(documented.begin(), documented.end(), isOther), documented.end());
    for (QByteArray& row : documented)
        row.truncate(row.indexOf('|', 1));
    QCOMPARE(documented, rows);
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
