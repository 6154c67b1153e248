#include "ControllerChannel.h"
#include "ControllerFile.h"
#include "ControllerText.h"
#include "Faults.h"
#include "Files.h"
#include "NamedController.h"
#include "Recording.h"
#include "SimulatedController.h"
#include "WireText.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <sys/resource.h>

/** The simulated controller and its files, the command channel, the faults below it, recordings, and versions. */
class TestController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void comparesVersions();
    void answers_data() { addRows("controller-answers.txt"); }
    void answers();
    void refusesControllerFiles_data() { addTexts("controller-files.txt"); }
    void refusesControllerFiles();
    void savesControllers();
    void answersAsRecorded();
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

static ControllerTable full()
{
    ControllerTable table;
    const QString problem = readTable("full", {}, &table);
    return problem.isEmpty() ? table : ControllerTable();
}

/** Carries out \a command, such as "get synccard available". Returns "ok", "failed", or the value of a read. */
static QByteArray outcome(SimulatedController* controller, const QByteArray& command)
{
    const QMap<QByteArray, Operation> operations = {
        {"raw", Operation::Send}, {"get", Operation::Get}, {"bool", Operation::Bool}, {"set", Operation::Set}};
    const int blank = command.indexOf(' ');
    QByteArray answer;
    if (!controller->execute(operations.value(command.left(blank)), command.mid(blank + 1), &answer))
        return "failed";
    return command.startsWith("set") ? "ok" : answer;
}

void TestController::answers()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    SimulatedController controller(full());
    QByteArray found;
    const QStringList steps = QString(left).split("; ");
    for (const QString& step : steps) {
        ControllerTable table = controller.table();
        if (step.contains(" ="))
            QCOMPARE(changeTable(&table, step), QString());
        controller.setTable(table);
        if (!step.contains(" ="))
            found = outcome(&controller, step.toLatin1());
    }
    QCOMPARE(found, unescaped(right));
}

void TestController::refusesControllerFiles()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.txt");
    writeFile(file, left.replace("\\e", "\xE4"));
    writeFile(folder.filePath("b.txt"), "x\n");
    NamedController controller{"before", {}};
    const QByteArray expected = right.replace("DIRECTORY", folder.path().toLatin1());
    QCOMPARE(readController(file, &controller), file + ':' + expected);
    QCOMPARE(controller.name, "before");
}

/** What is saved reads back to the same table. A file that cannot be written whole stays as it was. */
void TestController::savesControllers()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.txt");
    QVector<NamedController> controllers;
    QCOMPARE(readNamedControllers(&controllers), QString());
    ControllerTable odd;
    odd.description = " a\\b\x09";
    odd.identity.model = "\xE4 ";
    odd.insert({"synccard mode t01", "!"});
    odd.insert({"synccard mode_desc a=[1-2] ", " \n"});
    odd.insert({"set synccard source d01", "", true});
    odd.insert({"set synccard source d02", ""});
    controllers.append({"odd", odd});
    for (const NamedController& saved : qAsConst(controllers)) {
        NamedController read;
        QCOMPARE(saveTable(file, saved.table), QString());
        QCOMPARE(readController(file, &read), QString());
        QCOMPARE(written(read.table), written(saved.table));
        QCOMPARE(read.table.rows().size(), saved.table.rows().size());
        for (const AnswerRow& row : saved.table.rows()) {
            QVERIFY(read.table.find(row.command));
            QCOMPARE(read.table.find(row.command)->answer, row.answer);
            QCOMPARE(read.table.find(row.command)->isFailure, row.isFailure);
        }
    }
    const QByteArray before = readFile(file);
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small = {100, limit.rlim_max};
    auto* const previous = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const QString problem = saveTable(file, full());
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, previous);
    QCOMPARE(problem, file + ": " + qt_error_string(EFBIG));
    QCOMPARE(readFile(file), before);
}

/** The first connection of a recording is a controller: what it was first asked, and for the rest "full". */
void TestController::answersAsRecorded()
{
    const QString file = DATA_DIR "/recorded-controller.txt";
    NamedController recorded;
    QCOMPARE(readController(file, &recorded), QString());
    QCOMPARE(connectionText(recorded.table.identity), QByteArray("connect 1.10.0 FERNBANK 2"));
    QVERIFY2(recorded.table.description.startsWith("Recording recorded-controller.txt: 8 answers, ")
                 && recorded.table.description.endsWith(" more as in full, 1 unknown commands left out"),
             qPrintable(recorded.table.description));
    SimulatedController controller(recorded.table);
    const QByteArrayList expected = {
        "get synccard available: yes",
        "bool synccard has_input_frequency: failed", // one operation failed, another did not
        "get synccard has_input_frequency: yes",
        "raw zorvan2 get synccard active_mode: zorvan2 get synccard active_mode cam100",
        "raw zorvan2 get synccard mode_desc cam100: no echo",
        "get synccard internal_frequency d01: 75",
        "get synccard source d01: internal",
        "get synccard synccard d01: 0x0402 10427",
        "set synccard source d01 ttl: failed",
        "set synccard source d01 video: ok",
        "get synccard source d01: video",
        "set synccard active_mode none: ok",
        "raw zorvan2 get synccard active_mode: zorvan2 get synccard active_mode none",
    };
    for (const QByteArray& line : expected) {
        const QByteArray command = line.left(line.indexOf(':'));
        QCOMPARE(command + ": " + outcome(&controller, command), line);
    }
    const QTemporaryDir folder;
    const QString other = folder.filePath("b.txt");
    writeFile(other, "from = " + file.toUtf8() + "\nsynccard internal_frequency d01 = 80\n");
    QCOMPARE(readController(other, &recorded), QString());
    QCOMPARE(recorded.table.find("synccard internal_frequency d01")->answer, QByteArray("80"));
    QCOMPARE(recorded.table.description, QString());
    writeFile(other, readFile(file).chopped(1));
    QCOMPARE(readController(other, &recorded), other + ":15: cut off: the last line has no line end");
}

/** A text that just fits is taken whole, one character more fails. So does a text in place of a number or flag. */
void TestController::refusesAnswers()
{
    ControllerTable table = full();
    SimulatedController controller(table);
    ControllerChannel channel(&controller);
    char answer[200];
    for (const bool fits : {true, false}) {
        const QByteArray input(fits ? 199 : 200, 'x');
        const QByteArray output(fits ? 99 : 100, 'y');
        table.insert({"synccard input_frequency", input});
        table.insert({"synccard output d01", output});
        controller.setTable(table);
        QCOMPARE(channel.getParameter(answer, "synccard input_frequency") == 0, fits);
        QVERIFY(!fits || answer == input);
        QCOMPARE(channel.getParameter(answer, "synccard output d01") == 0, fits);
        QVERIFY(!fits || answer == output);
    }
    int number = 0;
    bool flag = false;
    QVERIFY(channel.getParameterInt(&number, "synccard source d01") != 0);
    QVERIFY(channel.getParameterBool(&flag, "synccard source d01") != 0);
}

void TestController::breaksCommands()
{
    SimulatedController controller(full());
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
