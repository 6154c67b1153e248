#include "Files.h"
#include "SessionRun.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <climits>

/** Whole sessions with the dialog, as the files of data tell them. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data() { addSessions("sessions.txt", SessionRun::keys()); }
    void runs();
    void findsMistakes_data() { addTexts("mistakes.txt"); }
    void findsMistakes();
    void survivesEachFailure_data() { addSessions("failures.txt", failureKeys); }
    void survivesEachFailure();

private:
    const QByteArrayList failureKeys = {"protocol", "answer", "user", "leave"};
};

void TestSessions::runs()
{
    QFETCH(Session, session);
    const QString problem = SessionRun::problemOf(session);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/** data/mistakes.txt holds small session files, each behind the message that it must give. */
void TestSessions::findsMistakes()
{
    QFETCH(QByteArray, left);
    QTemporaryDir folder;
    writeFile(folder.filePath("a"), left);
    const SessionFile file(folder.filePath("a"), SessionRun::keys());
    QString found = file.mistakes.value(0);
    for (int i = 0; i < file.sessions.size() && found.isEmpty(); ++i)
        found = SessionRun::problemOf(file.sessions.at(i));
    QTEST(found.toUtf8(), "right");
}

namespace {

/** One opening: the commands before "opened" filled the dialog, those from "left" on were sent on leaving it. */
struct Run
{
    QByteArray phase(int command) const { return command < opened ? "opening" : command < left ? "open" : way; }

    int result = 0;
    int opened = INT_MAX;
    int left = INT_MAX;
    QByteArray way;
    QString undone; // why actions could not be done
    QStringList shown;
    QByteArrayList commands;
};

Run open(LoadedModule& module, const SessionLines& actions, const QByteArray& way)
{
    Run run;
    module.boxes.clear();
    // They keep what an earlier opening saw.
    module.find<QLabel>("label_inputSource")->clear();
    module.find<QLabel>("label_inputFrequency")->clear();
    run.result = module.open([&] {
        run.opened = module.link.commands.size();
        run.shown = textOfDialog(module.dialog());
        const bool isOff = module.see("pushButton_Ok") == " off";
        for (const SessionLine& action : isOff ? SessionLines() : actions)
            run.undone += act(module, action);
        run.left = module.link.commands.size();
        run.way = isOff ? "Cancel" : way;
        module.user().leave(run.way);
    });
    run.commands = module.link.commands;
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

/** Holds reports, boxes, result and end of a run against what the table says of the commands that failed. */
void compareRun(const LoadedModule& module, const SessionFile& table, const Run& run, const Run& clean)
{
    QStringList effects;
    QByteArrayList reports;
    for (const int command : module.link.failed) {
        const QStringList found = consequence(table.lists.value(run.phase(command)), run.commands.at(command));
        effects.append(found.at(0));
        if (!found.at(1).isEmpty())
            reports.append(found.at(1).toUtf8());
    }
    QCOMPARE(module.link.reports, reports);
    const QByteArrayList warning = {"Warning: Error occured while performing the change"};
    QCOMPARE(module.boxes, effects.contains("box") ? warning : QByteArrayList());
    QCOMPARE(run.result, effects.contains("stops") ? -1 : run.way == "OK" ? 1 : 0);
    const QByteArrayList rest = run.commands.mid(module.link.failed.last() + 1);
    if (effects.contains("stops") || effects.contains("bare") || effects.contains("last"))
        QCOMPARE(rest, QByteArrayList());
    const int output = clean.commands.join('\n').indexOf("\nbool synccard has_output");
    if (effects == QStringList("box"))
        QCOMPARE('\n' + rest.join('\n'), output < 0 ? "\n" : clean.commands.join('\n').mid(output));
}

} // namespace

/** Each command fails in turn: the dialog closes, reports each failure once, and works again at the next opening. */
void TestSessions::survivesEachFailure()
{
    QFETCH(Session, session);
    const SessionFile table(DATA_DIR "/failures.txt", failureKeys);
    LoadedModule module(session.text("protocol"));
    for (const SessionLine& line : session.lines.value("answer"))
        QCOMPARE(module.link.script(line.text, line.number), QString());
    const ControllerTable answers = module.link.table();
    const SessionLines actions = session.lines.value("user");
    const Run clean = open(module, actions, session.text("leave"));
    QCOMPARE(clean.undone, QString());
    QCOMPARE(module.link.reports + module.boxes, QByteArrayList());
    QVERIFY(module.link.failed.isEmpty());
    for (int i = 0; i < clean.commands.size(); ++i) {
        for (const int end : {i + 1, INT_MAX}) {
            module.link.restart(answers, i, end);
            const Run run = open(module, actions, session.text("leave"));
            QVERIFY(module.link.failed.contains(i));
            compareRun(module, table, run, clean);
            module.link.restart(answers);
            const Run next = open(module, {}, "Cancel");
            QCOMPARE(next.commands, clean.commands.mid(0, clean.opened));
            QCOMPARE(next.shown, clean.shown);
            QCOMPARE(next.result, int(QDialog::Rejected));
            QCOMPARE(module.link.reports, QByteArrayList());
            if (QTest::currentTestFailed())
                QFAIL(qPrintable("failing " + clean.commands.at(i) + (end == INT_MAX ? " and what follows" : "")));
        }
    }
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
