#include "SessionRun.h"

#include <QLabel>
#include <QRegularExpression>

#include <climits>

/** One opening: the commands before "opened" filled the dialog, those from "left" on were sent on leaving it. */
struct Run
{
    QByteArray phase(int command) const { return command < opened ? "opening" : command < left ? "open" : way; }

    int result = 0;
    int opened = INT_MAX;
    int left = INT_MAX;
    QByteArray way;
    QString undone; // the error messages of actions
    QByteArrayList shown;
    QByteArrayList commands;
};

/** Whole sessions with the dialog, from files of tests/data. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data() { addSessions("sessions.txt"); }
    void runs();
    void findsMistakes_data() { addSessions("mistakes.txt"); }
    void findsMistakes();
    void survivesEachFailure_data() { addSessions("failures.txt"); }
    void survivesEachFailure();
    void knowsNoOtherFailure();

private:
    QString problemOf(const LoadedModule& module, const Run& run, const Run& clean);

    const SessionFile failures{"failures.txt"};
    QByteArrayList reached; // rows of failures.txt
};

void TestSessions::runs()
{
    QFETCH(Session, session);
    const QString problem = SessionRun::problemOf(session);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/** Each case of data/mistakes.txt has a mistake. The name of a case is the end of its expected error message. */
void TestSessions::findsMistakes()
{
    QFETCH(Session, session);
    QVERIFY2(SessionRun::problemOf(session).endsWith(session.name), qPrintable(SessionRun::problemOf(session)));
}

namespace {

Run open(LoadedModule& module, const QByteArrayList& actions, const QByteArray& way)
{
    Run run;
    module.boxes.clear();
    // These labels keep the values of an earlier opening.
    module.find<QLabel>("label_inputSource")->clear();
    module.find<QLabel>("label_inputFrequency")->clear();
    run.result = module.open([&] {
        run.opened = module.link.commands.size();
        run.shown = textOfDialog(module.dialog()).join('\n').toUtf8().split('\n');
        const bool isOff = module.see("pushButton_Ok") == " off";
        for (const QByteArray& action : isOff ? QByteArrayList() : actions)
            run.undone += act(module, action);
        run.left = module.link.commands.size();
        run.way = isOff ? "Cancel" : way;
        module.user().leave(run.way);
    });
    run.commands = module.link.commands;
    return run;
}

/** Returns the first row of \a list that matches \a command: its effect, its report, and the row itself. */
QByteArrayList consequence(const QByteArrayList& list, const QString& command)
{
    for (const QByteArray& line : list) {
        const QString row = line;
        const QString pattern = row.section(" -> ", 0, 0).section(' ', 1);
        const QRegularExpression expression('^' + pattern + '$');
        if (expression.match(command).hasMatch())
            return {row.section(' ', 0, 0).toUtf8(),
                    QString(command).replace(expression, row.section(" -> ", 1)).toUtf8(), line};
    }
    return {"", "no row of failures.txt knows " + command.toUtf8(), ""};
}

} // namespace

/** Returns the first difference of \a run from the rows of failures.txt for its failed commands, or an empty string. */
QString TestSessions::problemOf(const LoadedModule& module, const Run& run, const Run& clean)
{
    QByteArrayList effects;
    QByteArrayList expected;
    for (const int command : module.link.failed) {
        const QByteArray phase = run.phase(command);
        const QByteArrayList found = consequence(failures.lists.value(phase), run.commands.at(command));
        effects.append(found.at(0));
        if (!found.at(1).isEmpty())
            expected.append(found.at(1));
        reached.append(phase + found.at(2));
    }
    const bool isStopped = effects.contains("stops");
    if (effects.contains("box"))
        expected.append("Warning: Error occured while performing the change");
    expected.append("returns " + QByteArray::number(isStopped ? -1 : run.way == "OK" ? 1 : 0));
    QByteArrayList found = module.link.reports + module.boxes;
    found.append("returns " + QByteArray::number(run.result));
    const bool isBox = effects == QByteArrayList{"box"};
    if (isBox || isStopped || effects.contains("bare") || effects.contains("last"))
        found += run.commands.mid(module.link.failed.last() + 1);
    const int output = clean.commands.join('\n').indexOf("\nbool synccard has_output");
    if (isBox && output >= 0)
        expected += clean.commands.join('\n').mid(output + 1).split('\n');
    return difference(found, expected);
}

/** Each command fails in turn: the dialog closes, reports each failure once, and works again at the next opening. */
void TestSessions::survivesEachFailure()
{
    QFETCH(Session, session);
    LoadedModule module(session.lines.value("answer"));
    module.connectTo(session.text("protocol"));
    const ControllerTable answers = module.link.table();
    const QByteArrayList actions = session.lines.value("user");
    const Run clean = open(module, actions, session.text("leaves"));
    QCOMPARE(clean.undone, QString());
    QCOMPARE((module.link.reports + module.boxes).join(", "), QByteArray());
    QVERIFY(module.link.failed.isEmpty());
    for (const bool isAlone : {true, false}) {
        for (int i = 0; i < clean.commands.size(); ++i) {
            module.link.restart(answers, i, isAlone ? i + 1 : INT_MAX);
            const Run run = open(module, actions, session.text("leaves"));
            QString problem =
                module.link.failed.contains(i) ? problemOf(module, run, clean) : "is not logged as failed";
            module.link.restart(answers);
            const Run next = open(module, {}, "Cancel");
            if (problem.isEmpty())
                problem = difference(next.commands + next.shown + module.link.reports,
                                     clean.commands.mid(0, clean.opened) + clean.shown);
            QVERIFY2(problem.isEmpty(), qPrintable("failing " + clean.commands.at(i) + ": " + problem));
        }
    }
}

/** After all cases each row of failures.txt has been reached. */
void TestSessions::knowsNoOtherFailure()
{
    for (auto phase = failures.lists.begin(); phase != failures.lists.end(); ++phase)
        for (const QByteArray& row : phase.value())
            QVERIFY2(reached.contains(phase.key() + row), "no case reaches: " + phase.key() + ' ' + row);
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
