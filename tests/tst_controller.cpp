#include "ControllerChannel.h"
#include "ControllerFile.h"
#include "ControllerText.h"
#include "Faults.h"
#include "Files.h"
#include "NamedController.h"
#include "Recorder.h"
#include "Replay.h"
#include "ScriptedController.h"

#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <utility>

/** The simulated controller and its files, and the layers up to a module: channel, faults, recordings. */
class TestController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void carriesOut_data() { addRows("commands.txt"); }
    void carriesOut();
    void refusesFiles_data() { addTexts("controller-files.txt"); }
    void refusesFiles();
    void savesControllers();
};

namespace {

/** A command channel with all layers below it, as in the host, and the results of their steps. */
class Layers : public QObject
{
public:
    /** Replays the recording in \a file. Without a file it answers as the controller "full". */
    explicit Layers(const QString& file);

    /** Carries out a step of data/commands.txt. */
    void take(const QString& step);

    QStringList heard;

private:
    void hear(const QString& text);
    void change(const QString& line);
    void readLines(const QString& file);
    void carryOut(const QString& operation, const QByteArray& command);

    QTemporaryDir folder;
    SimulatedController controller{tableOf("full")};
    Replay replay;
    Faults faults;
    Recorder recorder{&faults};
    ControllerChannel channel{&recorder};
    QString logged;  // the last command
    int changes = 0; // of the controller's table
};

Layers::Layers(const QString& file)
    : replay(file), faults(file.isEmpty() ? static_cast<ControllerLink*>(&controller) : &replay)
{
    hear(file.isEmpty() ? QString() : replay.open());
    connect(&channel, &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        const qint64 milliseconds = record.microseconds / 1000;
        const bool isTimed = milliseconds >= faults.latency() - 1 && milliseconds < 10000;
        logged = QString("%1, %2, %3%4%5")
                     .arg(record.text(), QByteArray::number(record.result), record.answer,
                          isTimed ? "" : ", wrong time", channel.isBusy() ? ", busy" : "");
    });
    connect(&channel, &ControllerChannel::reported, this,
            [this](const QString& category, const QString& systemTag, int flag, const QString& message) {
                hear(QString("%1, %2, %3, %4").arg(category, systemTag, QString::number(flag), message));
            });
    connect(&controller, &SimulatedController::changed, this, [this] { ++changes; });
    connect(&recorder, &Recorder::started, this, [this] { hear("started"); });
    connect(&recorder, &Recorder::ended, this, [this](const QString& problem) { hear("ended" + problem); });
    connect(&replay, &Replay::differed, this, [this](const QString& problem) { hear(problem); });
}

/** Keeps a text that is not empty, without the directories of files. */
void Layers::hear(const QString& text)
{
    if (!text.isEmpty())
        heard.append(QString(text).remove(DATA_DIR "/").remove(folder.path() + '/'));
}

void Layers::take(const QString& step)
{
    const QString file = folder.filePath("a");
    const QString word = step.section(' ', 0, 0);
    const QString rest = step.section(' ', 1);
    static const QRegularExpression number("\\d+ more ");
    ControllerIdentity identity;
    ControllerTable table = controller.table();
    const QMap<QString, std::function<void()>> deeds = {
        {"use", [&] { controller.setTable(tableOf(rest.endsWith(".txt") ? DATA_DIR "/" + rest : rest)); }},
        {"describe", [&] { hear(QString(table.description).remove(number)); }},
        {"identity", [&] { hear(connectionText(table.identity)); }},
        {"fill", [&] { change(rest.section(' ', 1) + '=' + QString(rest.section(' ', 0, 0).toInt(), 'x')); }},
        {"remove",
         [&] {
             table.remove({rest.toLatin1()});
             controller.setTable(table);
         }},
        {"changes", [&] { hear(QString::number(std::exchange(changes, 0))); }},
        {"nth", [&] { faults.failNth(rest.toInt()); }},
        {"matching", [&] { faults.failMatching(QRegularExpression(rest)); }},
        {"latency", [&] { faults.setLatency(rest.toInt()); }},
        {"loop", [&] { faults.waitInEventLoop(true); }},
        {"connect", [&] { readConnection(step.toLatin1(), &identity) ? recorder.connected(identity) : hear("no"); }},
        {"record", [&] { hear(recorder.start(file)); }},
        {"stop", [&] { recorder.stop(); }},
        {"lines", [&] { readLines(file); }},
        {"controller", [&] { hear(connectionText(replay.recordedController())); }},
        {"end", [&] { hear(replay.isAtEnd() ? "at the end" : "before the end"); }},
        {"report", [&] { channel.reportError("a", "b", 2, rest.toLatin1()); }}};
    if (step.contains(" ="))
        change(step);
    else if (deeds.contains(word))
        deeds.value(word)();
    else
        carryOut(word, rest.toLatin1());
}

/** Changes the controller by a line of a controller file. */
void Layers::change(const QString& line)
{
    ControllerTable table = controller.table();
    hear(changeTable(&table, line));
    controller.setTable(table);
}

/** Hears the lines of a recording without their times. If commands are delayed, a time of zero stays. */
void Layers::readLines(const QString& file)
{
    const QString time = faults.latency() > 0 ? R"(0\.(?!000)\d{3})" : R"(\d\.\d{3})";
    const QRegularExpression times("\n([0-9.]+ (?=connect)|" + time + " )");
    hear(QString(readFile(file)).trimmed().replace(times, " | "));
}

/** Hears the answer of a command, a wrong log, and a wrong value after a failure. */
void Layers::carryOut(const QString& operation, const QByteArray& command)
{
    char text[300] = {};
    int number = 0;
    double real = 0;
    bool flag = false;
    const char* const name = command.constData();
    const QMap<QString, std::function<int()>> calls = {
        {"send", [&] { return channel.sendCommand(text, "%s", name); }},
        {"get", [&] { return channel.getParameter(text, "%s", name); }},
        {"int", [&] { return channel.getParameterInt(&number, "%s", name); }},
        {"double", [&] { return channel.getParameterDouble(&real, "%s", name); }},
        {"bool", [&] { return channel.getParameterBool(&flag, "%s", name); }},
        {"set", [&] { return channel.setParameter("%s", name); }}};
    QTimer::singleShot(0, this, [this] { hear(channel.isBusy() ? "events" : ""); });
    const int result = calls.value(operation)();
    const QMap<QString, QByteArray> values = {{"int", QByteArray::number(number)},
                                              {"double", QByteArray::number(real)},
                                              {"bool", flag ? "yes" : "no"},
                                              {"set", ""}};
    const QByteArray value = values.value(operation, text);
    const QByteArray plausible = operation == "set" ? "" : number == 1 || real == 1 ? "1" : "yes";
    const QString expected =
        QString("%1 %2, %3, %4").arg(operation, command, QByteArray::number(result), result == 0 ? value : "");
    hear(logged == expected ? QString() : "logged " + logged);
    if (result != 0)
        hear(result == -1 && value == plausible ? "failed" : QString("failed, %1, %2").arg(result).arg(QString(value)));
    else if (value.size() > 99)
        hear(QString("%1 characters").arg(value.size()));
    else
        hear(operation == "set" ? "ok" : written(value));
}

} // namespace

/** Only the second run of each program has a decimal comma. */
void TestController::initTestCase()
{
    QCOMPARE(*localeconv()->decimal_point, qgetenv("LC_ALL").startsWith("de_DE") ? ',' : '.');
}

void TestController::carriesOut()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QStringList steps = QString(left).split("; ");
    const bool isReplay = steps.first().startsWith("replay ");
    Layers layers(isReplay ? DATA_DIR "/" + steps.takeFirst().section(' ', 1) : QString());
    for (const QString& step : qAsConst(steps))
        layers.take(step);
    QCOMPARE(layers.heard.join("; "), QString(right));
}

void TestController::refusesFiles()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.txt");
    left.replace("\\e", "\xE4").replace("\\0", QByteArray(1, '\0')).replace('\n', "\r\n");
    writeFile(file, left.contains("\\c") ? left.left(left.indexOf("\\c")) : left);
    writeFile(folder.filePath("b.txt"), "x\n");
    NamedController controller{"before", {}};
    const QByteArray expected = right.replace("DIRECTORY", folder.path().toLatin1());
    QCOMPARE(readController(file, &controller), file + ':' + expected);
    QCOMPARE(controller.name, "before");
}

/** A saved table reads back unchanged. A file that cannot be written whole keeps its content. */
void TestController::savesControllers()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.txt");
    QCOMPARE(saveTable(file, tableOf(DATA_DIR "/odd-controller.txt")), QString());
    const QByteArray before = readFile(file);
    QCOMPARE(before, readFile(DATA_DIR "/odd-controller.txt"));
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small = {100, limit.rlim_max};
    auto* const previous = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const QString problem = saveTable(file, tableOf("full"));
    setrlimit(RLIMIT_FSIZE, &limit);
    static_cast<void>(std::signal(SIGXFSZ, previous));
    QCOMPARE(problem, file + ": " + qt_error_string(EFBIG));
    QCOMPARE(readFile(file), before);
}

QTEST_MAIN(TestController)
#include "tst_controller.moc"
