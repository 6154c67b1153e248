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
    QVERIFY(set("external_divisor d01 40") && set("output d01 ttlinv") && set("source d01 video"));
    QVERIFY(set("output_delay d02 ch04 1.5") && set("output_during_idle d02 ch04 yes"));
    const CardState& card = controller.state().cards.at(0);
    QCOMPARE(QString("%1 %2 %3").arg(card.source).arg(card.divisor).arg(card.output), "video 10 none");
    const ChannelState& channel = controller.state().cards.at(1).channels.at(3);
    QVERIFY(channel.delay == 1.5 && channel.activeDuringIdle);
}

namespace {

QString text(const VersionInfo& version)
{
    return version.toString();
}
QString text(const QStringList& texts)
{
    return texts.join(' ');
}
template <typename Entry>
QString text(const QVector<Entry>& entries)
{
    return QString::number(entries.size());
}
template <typename Value>
QString text(const Value& value)
{
    return QVariant(value).toString();
}

template <typename... Fields>
QStringList texts(const Fields&... fields)
{
    return {text(fields)...};
}

// A field that is added to a record does not fit these bindings, and stops the build here.
QStringList fieldsOf(const ModeState& mode)
{
    const auto& [id, description] = mode;
    return texts(id, description);
}
QStringList fieldsOf(const SourceState& source)
{
    const auto& [keyword, maxDivisor, outputs] = source;
    return texts(keyword, maxDivisor, outputs);
}
QStringList fieldsOf(const ChannelState& channel)
{
    const auto& [delay, activeDuringIdle] = channel;
    return texts(delay, activeDuringIdle);
}
QStringList fieldsOf(const CardState& card)
{
    const auto& [model, serial, description, sources, source, maxFrequency, frequency, divisor, output, maxDelay,
                 channels] = card;
    return texts(model, serial, description, sources, source, maxFrequency, frequency, divisor, output, maxDelay,
                 channels);
}
QStringList fieldsOf(const ControllerState& state)
{
    const auto& [description, protocol, model, locked, refusesSources, input, modes, activeMode, cards, cardsPresent] =
        state;
    return texts(description, protocol, model, locked, refusesSources, input, modes, activeMode, cards, cardsPresent);
}

/** A state in which each field of each record differs from its default. */
ControllerState otherState()
{
    const CardState card = {"0x0301", "7",   "Card",       {{"video", 7, {"ttl"}}}, "video", 90.0, 80.0, 3,
                            "ttl",    200.0, {{1.5, true}}};
    return {"Other",  VersionInfo(1, 22, 3), "FERNBANK", true,   true,
            "ttl 50", {{"slow", "Slow"}},    "slow",     {card}, false};
}

template <typename Record>
void compareFields(const Record& read, const Record& written)
{
    const QStringList defaults = fieldsOf(Record());
    for (int i = 0; i < defaults.size(); ++i)
        QVERIFY2(fieldsOf(written).at(i) != defaults.at(i), qPrintable(defaults.at(i) + " is the default"));
    QCOMPARE(fieldsOf(read), fieldsOf(written));
}

} // namespace

/** What is written can be read back, field by field. */
void TestController::describesEveryField()
{
    const ControllerState written = otherState();
    ControllerState read;
    QString error;
    QVERIFY2(readState(toTree(written).toJson(), &read, &error), qPrintable(error));
    compareFields(read, written);
    compareFields(read.modes.first(), written.modes.first());
    compareFields(read.cards.first(), written.cards.first());
    compareFields(read.cards.first().sources.first(), written.cards.first().sources.first());
    compareFields(read.cards.first().channels.first(), written.cards.first().channels.first());
}

/** The table of docs/workbench.md names each field in the description's order. */
void TestController::documentsEveryField()
{
    QFile page(DATA_DIR "/../../docs/workbench.md");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QStringList documented;
    auto rows = QRegularExpression("^\\| `([^`]+)`", QRegularExpression::MultilineOption).globalMatch(page.readAll());
    while (rows.hasNext())
        documented.append(rows.next().captured(1));
    QStringList described;
    for (const QString& line : toTree(otherState()).toLines())
        described.append(line.section(':', 0, 0).remove(QRegularExpression(" \\d+")));
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
