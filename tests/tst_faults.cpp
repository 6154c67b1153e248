#include "Session.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTableWidget>

#include <climits>

/** Whatever the controller answers and the host does: the dialog closes, reports honestly and leaves nothing behind. */
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void survivesEachFailure_data() { addSessions("failures.txt"); }
    void survivesEachFailure();
    void survivesGarbage();
    void survivesTheHost();
};

namespace {

/** One opening: the commands before "opened" filled the dialog, those from "left" on were sent on leaving it. */
struct Run
{
    QString phase(int command) const { return command < opened ? "opening" : command < left ? "open" : way; }

    int result = 0;
    int opened = INT_MAX;
    int left = INT_MAX;
    QByteArray way;
    QStringList shown;
    QStringList commands;
};

Run open(Bench& bench, const Session& session, const ScriptedChannel& channel)
{
    Run run;
    bench.channel = channel;
    bench.boxes.clear();
    // They keep what an earlier opening saw.
    bench.find<QLabel>("label_inputSource")->clear();
    bench.find<QLabel>("label_inputFrequency")->clear();
    run.result = bench.open([&] {
        run.opened = bench.channel.commands.size();
        run.shown = textOfDialog(bench.dialog());
        const bool isOff = bench.see("pushButton_Ok") == " off";
        for (const QByteArray& action : isOff ? QByteArrayList() : session.value("user"))
            act(bench, action);
        run.left = bench.channel.commands.size();
        run.way = isOff ? "Cancel" : session.value("leave").first();
        bench.user().leave(run.way);
    });
    for (const QByteArray& command : qAsConst(bench.channel.commands))
        run.commands.append(command);
    return run;
}

/** Effect and report of the first row of \a table that knows \a command. */
QStringList consequence(const QByteArrayList& table, const QString& command)
{
    for (const QByteArray& line : table) {
        const QString row = line;
        const QString pattern = row.section(" -> ", 0, 0).section(' ', 1);
        const QRegularExpression expression('^' + pattern + '$');
        if (expression.match(command).hasMatch())
            return {row.section(' ', 0, 0), QString(command).replace(expression, row.section(" -> ", 1))};
    }
    return {"not in the table: " + command, QString()};
}

/** Holds reports, boxes and result of a run against what the table says of the commands that failed. */
void compareRun(const Bench& bench, const SessionFile& table, const Run& run)
{
    QStringList effects;
    QByteArrayList reports;
    for (const int command : bench.channel.failed) {
        const QStringList found = consequence(table.lists.value(run.phase(command).toUtf8()), run.commands.at(command));
        effects.append(found.at(0));
        if (!found.at(1).isEmpty())
            reports.append(found.at(1).toUtf8());
    }
    QCOMPARE(bench.channel.reports, reports);
    const QByteArrayList warning = {"Warning: Error occured while performing the change"};
    QCOMPARE(bench.boxes, effects.contains("box") ? warning : QByteArrayList());
    QCOMPARE(run.result, effects.contains("stops") ? -1 : run.way == "OK" ? 1 : 0);
    if (effects.contains("stops") || effects.contains("bare"))
        QCOMPARE(bench.channel.failed.last(), run.commands.size() - 1);
}

} // namespace

void TestFaults::survivesEachFailure()
{
    QFETCH(Session, session);
    const SessionFile table("failures.txt");
    Bench bench(session.value("protocol").first(), session.value("answer").join(';'));
    const ScriptedChannel channel = bench.channel;
    const Run clean = open(bench, session, channel);
    QVERIFY(bench.channel.failed.isEmpty() && bench.channel.reports.isEmpty() && bench.boxes.isEmpty());
    for (int i = 0; i < clean.commands.size(); ++i) {
        for (const int end : {i + 1, INT_MAX}) {
            ScriptedChannel failing = channel;
            failing.failBetween(i, end);
            const Run run = open(bench, session, failing);
            QVERIFY(bench.channel.failed.contains(i));
            compareRun(bench, table, run);
            const Run next = open(bench, {{"leave", {"Cancel"}}}, channel);
            QCOMPARE(next.commands, clean.commands.mid(0, clean.opened));
            QCOMPARE(next.shown, clean.shown);
            QVERIFY(next.result == QDialog::Rejected && bench.channel.reports.isEmpty());
            if (QTest::currentTestFailed())
                QFAIL(qPrintable("failing " + clean.commands.at(i) + (end == INT_MAX ? " and what follows" : "")));
        }
    }
}

namespace {

/** Answers with whatever fits its buffers, and looks at what is written. */
class GarbageChannel : public FormattingChannel
{
public:
    explicit GarbageChannel(quint32 seed) : random(seed) {}

    void reportError(const char* /*category*/, const char* /*systemTag*/, int /*flag*/, const char* message) override
    {
        QVERIFY(QByteArray(message).startsWith("Error: Unable to "));
    }

    template <typename Value>
    Value anyOf(const QVector<Value>& values)
    {
        return values.at(random.bounded(values.size()));
    }

    QRandomGenerator random;
    int written = 0;

protected:
    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;
    void finished(const CommandRecord& record) override;

private:
    QByteArray text();
    QByteArray number();
};

QByteArray GarbageChannel::text()
{
    QByteArray bytes(anyOf<int>({1, 15, 99, 199, random.bounded(200)}), '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random.bounded(1, 256));
    return anyOf<QByteArray>({"yes", "yes", "yes", "no", "internal", "video", "a b c d none", "0x0301 7", "", " ",
                              "direct settings", R"(x "a" b)", R"(""")", "%n%s%1%2%99", "<b><img src=x>", bytes,
                              bytes});
}

QByteArray GarbageChannel::number()
{
    if (random.bounded(100) > 0)
        return anyOf<QByteArray>({"0", "1", "2", "3", "0.25", "60"});
    return anyOf<QByteArray>({"-1", "999", "2147483647", "-2147483648", "99999999999", "nan", "inf", "-inf", "1e308",
                              "-1e305", "1e-320", text()});
}

bool GarbageChannel::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    *answer = operation == "int" || operation == "double" ? number() : text();
    if (command == "synccard available" && random.bounded(10) > 0)
        *answer = "yes";
    return random.bounded(200) > 0;
}

void GarbageChannel::finished(const CommandRecord& record)
{
    static const QRegularExpression notWritten("nan|inf|[^ -~]");
    written += record.operation == "set";
    if (record.operation == "set" && !record.command.startsWith("synccard active_mode "))
        QVERIFY(!notWritten.match(record.command).hasMatch());
}

/** One hasty thing a user may do next. */
void actAtRandom(const Bench& bench, GarbageChannel* channel)
{
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        return box->accept();
    if (!bench.dialog()->isVisible())
        return;
    const auto name = channel->anyOf<QByteArray>({"comboBox_modes", "comboBox_source", "comboBox_output"});
    auto* selector = bench.find<QComboBox>(name);
    if (selector->isEnabled() && selector->count() > 0)
        selector->setCurrentIndex(channel->random.bounded(selector->count()));
    bench.find<QDoubleSpinBox>("doubleSpinBox_frequency")->stepUp();
    QMetaObject::invokeMethod(bench.dialog(), "poll_input_frequency");
    if (channel->random.bounded(3) == 0)
        QMetaObject::invokeMethod(bench.dialog(), bench.see("pushButton_Ok").isEmpty() ? "accept" : "reject");
}

} // namespace

/** GARBAGE_OPENINGS and GARBAGE_SEED choose more openings and other garbage. */
void TestFaults::survivesGarbage()
{
    const int openings = qMax(3000, qEnvironmentVariableIntValue("GARBAGE_OPENINGS"));
    GarbageChannel channel(static_cast<quint32>(qEnvironmentVariableIntValue("GARBAGE_SEED")));
    Bench bench;
    bench.loader.module()->exit_module();
    bench.loader.setParameters(&channel, bench.parent, &bench.versions, false);
    bench.element = bench.loader.module()->get_gui_elements().first();
    QTimer hands;
    connect(&hands, &QTimer::timeout, this, [&] { actAtRandom(bench, &channel); });
    hands.start(0);
    QMap<int, int> results;
    for (int i = 0; i < openings && !QTest::currentTestFailed(); ++i) {
        bench.versions = backend(channel.anyOf<QString>({"0.9", "1.4", "1.10 QUILLSTONE", "1.23", "1.23"}));
        int result = -3;
        QMetaObject::invokeMethod(bench.dialog(), "update_and_exec", Q_RETURN_ARG(int, result));
        ++results[result];
        QVERIFY(!bench.dialog()->isVisible() && bench.find<QTableWidget>("tableWidget_channels")->rowCount() <= 999);
    }
    QCOMPARE(results.keys(), QList<int>({-1, QDialog::Rejected, QDialog::Accepted}));
    QVERIFY2(channel.written > openings / 2, qPrintable(QString::number(channel.written)));
}

/** The dialog may die with its parent or its module while it is open, and while the warning is: nothing more is sent.
 */
void TestFaults::survivesTheHost()
{
    for (const int kind : {0, 1, 2, 3}) {
        const bool isInBox = kind % 2 == 0;
        Bench bench("1.23", "set synccard active_mode none=!");
        const auto interfere = [&] {
            if (kind < 2)
                delete bench.parent;
            else
                bench.loader.module()->exit_module();
        };
        bench.open([&] {
            bench.user().clickCell(1, 2);
            bench.channel.takeCommands();
            if (!isInBox)
                return interfere();
            bench.insteadOfClosingBox = interfere;
            bench.user().leave("OK");
        });
        QCOMPARE(bench.channel.commands.join(), QByteArray(isInBox ? "set synccard active_mode none" : ""));
        QVERIFY(!bench.element->content);
        bench.loader.module()->exit_module();
        bench.loader.module()->exit_module();
    }
}

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
