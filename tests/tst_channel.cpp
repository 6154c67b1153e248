#include "ControllerChannel.h"
#include "Faults.h"
#include "Files.h"
#include "Recording.h"
#include "SimulatedController.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <clocale>

/** The command channel, the faults below it, and the reader of recordings. */
class TestChannel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void refusesAnswers();
    void readsRecordings();
    void breaksCommands();
};

/** The second run of each program must really have a decimal comma. */
void TestChannel::initTestCase()
{
    QCOMPARE(*localeconv()->decimal_point, qEnvironmentVariableIsSet("LOCPATH") ? ',' : '.');
}

/** A text that just fits is taken whole, one character more fails; so does a text in place of a number or flag. */
void TestChannel::refusesAnswers()
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

/** A whole recording, and damaged ones with what is wrong. */
void TestChannel::readsRecordings()
{
    const QByteArray start = "synccard recording 1\n0.000 connect 1.23.0 X -> \n";
    const QByteArray form = R"("SECONDS OPERATION COMMAND -> ANSWER" or "... failed" is expected)";
    const QMap<QByteArray, QByteArray> problems = {
        {start + "# note\r\n\n0.1 set a b ->\r\n0.2 get c failed\n0.3 get \\-> -> \\\\ \\n\\r\n", ""},
        {"{}\n", ":1: this is no recording"},
        {"synccard recording 1\n", ":2: it does not begin with a \"connect\""},
        {"synccard recording 1\n#\n0 get a -> b\n0 get a -> b\n", ":3: it does not begin with a \"connect\""},
        {"synccard recording 1\n0 connect 1 X -> \n",
         ":2: a protocol version such as 1.23.0 is expected behind \"connect\""},
        {start + "0.1 get a -> \xE4\n", ":3: a character that is not Latin-1, or no UTF-8"},
        {start + "0.1 get a -> Cam\\era\n", R"(:3: an unknown "\"; the character itself is written "\\")"},
        {start + "0.1 get a\n", ":3: " + form},
        {start + "x get a -> b\n", ":3: seconds are expected, \"x\" is found"},
        {start + "1 put a -> b\n", ":3: unknown operation \"put\""}};
    const QTemporaryDir folder;
    const QString file = folder.filePath("a");
    for (auto problem = problems.begin(); problem != problems.end(); ++problem) {
        writeFile(file, problem.key());
        QVector<RecordedLine> lines;
        QString found;
        QCOMPARE(readRecording(file, &lines, &found), problem->isEmpty());
        QCOMPARE(found, problem->isEmpty() ? QString() : file + *problem);
        if (problem->isEmpty())
            QCOMPARE(lines.last().toLine(1234), QByteArray("1.234 get \\-> -> \\\\ \\n\\r\n"));
    }
}

void TestChannel::breaksCommands()
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

QTEST_MAIN(TestChannel)
#include "tst_channel.moc"
