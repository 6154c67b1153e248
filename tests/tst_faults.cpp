#include "SessionRun.h"

#include <QLabel>
#include <QRegularExpression>

#include <climits>

/** Each command fails in turn: the dialog closes, reports each failure once, and works again at the next opening. */
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void survivesEachFailure_data();
    void survivesEachFailure();
};

namespace {

QByteArrayList keys()
{
    return {"protocol", "answer", "user", "leave"};
}

/** One opening: the commands before "opened" filled the dialog, those from "left" on were sent on leaving it. */
struct Run
{
    QString phase(int command) const { return command < opened ? "opening" : command < left ? "open" : way; }

    int result = 0;
    int opened = INT_MAX;
    int left = INT_MAX;
    QByteArray way;
    QString undone; // why actions could not be done
    QStringList shown;
    QStringList commands;
};

Run open(LoadedModule& module, const Session& session)
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
        for (const SessionLine& line : isOff ? SessionLines() : session.lines.value("user"))
            run.undone += act(module, line);
        run.left = module.link.commands.size();
        run.way = isOff ? "Cancel" : session.text("leave");
        module.user().leave(run.way);
    });
    for (const QByteArray& command : qAsConst(module.link.commands))
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
void compareRun(const LoadedModule& module, const SessionFile& table, const Run& run)
{
    QStringList effects;
    QByteArrayList reports;
    for (const int command : module.link.failed) {
        const QStringList found = consequence(table.lists.value(run.phase(command).toUtf8()), run.commands.at(command));
        effects.append(found.at(0));
        if (!found.at(1).isEmpty())
            reports.append(found.at(1).toUtf8());
    }
    QCOMPARE(module.link.reports, reports);
    const QByteArrayList warning = {"Warning: Error occured while performing the change"};
    QCOMPARE(module.boxes, effects.contains("box") ? warning : QByteArrayList());
    QCOMPARE(run.result, effects.contains("stops") ? -1 : run.way == "OK" ? 1 : 0);
    if (effects.contains("stops") || effects.contains("bare"))
        QCOMPARE(module.link.failed.last(), run.commands.size() - 1);
}

} // namespace

void TestFaults::survivesEachFailure_data()
{
    addSessions("failures.txt", keys());
}

void TestFaults::survivesEachFailure()
{
    QFETCH(Session, session);
    const SessionFile table(DATA_DIR "/failures.txt", keys());
    LoadedModule module(session.text("protocol"));
    module.link.script(session.lines.value("answer"));
    const ScriptedLink::Answers answers = module.link.answers;
    Session cancelled;
    cancelled.lines["leave"] = {{"Cancel", 0}};
    const Run clean = open(module, session);
    QCOMPARE(clean.undone, QString());
    QCOMPARE(module.link.reports + module.boxes, QByteArrayList());
    QVERIFY(module.link.failed.isEmpty());
    for (int i = 0; i < clean.commands.size(); ++i) {
        for (const int end : {i + 1, INT_MAX}) {
            module.link.restart(answers, i, end);
            const Run run = open(module, session);
            QVERIFY(module.link.failed.contains(i));
            compareRun(module, table, run);
            module.link.restart(answers);
            const Run next = open(module, cancelled);
            QCOMPARE(next.commands, clean.commands.mid(0, clean.opened));
            QCOMPARE(next.shown, clean.shown);
            QCOMPARE(next.result, int(QDialog::Rejected));
            QCOMPARE(module.link.reports, QByteArrayList());
            if (QTest::currentTestFailed())
                QFAIL(qPrintable("failing " + clean.commands.at(i) + (end == INT_MAX ? " and what follows" : "")));
        }
    }
}

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
