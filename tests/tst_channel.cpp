#include "ControllerChannel.h"
#include "Faults.h"
#include "Files.h"
#include "Recording.h"
#include "SimulatedController.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <clocale>

/** The command channel, the faults below it, and the reader of recordings. */
class TestChannel : public QObject
{
    Q_OBJECT

private slots:
    void formatsWithoutLocale();
    void refusesLongAnswers();
    void readsRecordings_data();
    void readsRecordings();
    void breaksCommands();
};

void TestChannel::formatsWithoutLocale()
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
void TestChannel::refusesLongAnswers()
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

void TestChannel::readsRecordings_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("problem");
    const QByteArray start = "synccard recording 1\n0.000 connect 1.23.0 X -> \n";
    const QString form = R"("SECONDS OPERATION COMMAND -> ANSWER" or "... failed" is expected)";
    QTest::newRow("whole") << start + "# note\r\n\n0.1 set a b ->\r\n0.2 get c failed\n0.3 get \\-> -> \\\\ \\n\\r\n"
                           << "";
    QTest::newRow("something else") << QByteArray("{}\n") << "1: this is no recording";
    QTest::newRow("empty") << QByteArray("synccard recording 1\n") << "2: it does not begin with a \"connect\"";
    QTest::newRow("not begun") << QByteArray("synccard recording 1\n#\n0 get a -> b\n0 get a -> b\n")
                               << "3: it does not begin with a \"connect\"";
    QTest::newRow("Latin-1") << start + "0.1 get a -> \xE4\n"
                             << "3: a character that is not Latin-1, or no UTF-8";
    QTest::newRow("escape") << start + "0.1 get a -> Cam\\era\n"
                            << R"(3: an unknown "\"; the character itself is written "\\")";
    QTest::newRow("no answer") << start + "0.1 get a\n"
                               << "3: " + form;
    QTest::newRow("time") << start + "x get a -> b\n"
                          << "3: seconds are expected, \"x\" is found";
    QTest::newRow("operation") << start + "1 put a -> b\n"
                               << "3: unknown operation \"put\"";
    QTest::newRow("version") << start.left(20) + "\n0 connect 1 X -> \n"
                             << "2: a protocol version such as 1.23.0 is expected behind \"connect\"";
}

void TestChannel::readsRecordings()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, problem);
    QTemporaryDir folder;
    const QString file = folder.filePath("a");
    writeFile(file, lines);
    QVector<RecordedLine> read;
    QString found;
    QCOMPARE(readRecording(file, &read, &found), problem.isEmpty());
    QCOMPARE(found, problem.isEmpty() ? QString() : file + ':' + problem);
    if (problem.isEmpty())
        QCOMPARE(read.last().toLine(1234), QByteArray("1.234 get \\-> -> \\\\ \\n\\r\n"));
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
