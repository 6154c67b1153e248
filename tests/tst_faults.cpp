#include "SessionRun.h"

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
    void survivesEachFailure_data();
    void survivesEachFailure();
    void survivesGarbage();
};

namespace {

const QByteArrayList keys = {"protocol", "answer", "user", "leave"};

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
        for (const QByteArray& action : isOff ? QByteArrayList() : session.texts("user"))
            run.undone += act(module, action);
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
    addSessions("failures.txt", keys);
}

void TestFaults::survivesEachFailure()
{
    QFETCH(Session, session);
    const SessionFile table(DATA_DIR "/failures.txt", keys);
    LoadedModule module(session.text("protocol"), session.texts("answer").join(';'));
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

namespace {

/** Answers with whatever fits the module's buffers. */
class GarbageLink : public ControllerLink
{
public:
    explicit GarbageLink(quint32 seed) : random(seed) {}

    bool execute(Operation operation, const QByteArray& command, QByteArray* answer) override;

    template <typename Value>
    Value anyOf(const QVector<Value>& values)
    {
        return values.at(random.bounded(values.size()));
    }

    QRandomGenerator random;

private:
    QByteArray text();
    QByteArray number();
};

QByteArray GarbageLink::text()
{
    QByteArray bytes(anyOf<int>({1, 15, 99, 199, random.bounded(200)}), '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random.bounded(1, 256));
    return anyOf<QByteArray>({"yes", "yes", "yes", "no", "internal", "video", "a b c d none", "0x0301 7", "", " ",
                              "direct settings", R"(x "a" b)", R"(""")", "%n%s%1%2%99", "<b><img src=x>", bytes,
                              bytes});
}

QByteArray GarbageLink::number()
{
    if (random.bounded(100) > 0)
        return anyOf<QByteArray>({"0", "1", "2", "3", "0.25", "60"});
    return anyOf<QByteArray>({"-1", "999", "2147483647", "-2147483648", "99999999999", "nan", "inf", "-inf", "1e308",
                              "-1e305", "1e-320", text()});
}

bool GarbageLink::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    *answer = operation == Operation::Int || operation == Operation::Double ? number() : text();
    if (command == "synccard available" && random.bounded(10) > 0)
        *answer = "yes";
    return random.bounded(200) > 0;
}

void checkWritten(const CommandRecord& record)
{
    static const QRegularExpression notWritten("nan|inf|[^ -~]");
    if (record.operation == Operation::Set && !record.command.startsWith("synccard active_mode "))
        QVERIFY(!notWritten.match(record.command).hasMatch());
}

/** One hasty thing a user may do next. */
void actAtRandom(const LoadedModule& module, GarbageLink* garbage)
{
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        return box->accept();
    if (!module.dialog()->isVisible())
        return;
    const auto name = garbage->anyOf<QByteArray>({"comboBox_modes", "comboBox_source", "comboBox_output"});
    auto* selector = module.find<QComboBox>(name);
    if (selector->isEnabled() && selector->count() > 0)
        selector->setCurrentIndex(garbage->random.bounded(selector->count()));
    module.find<QDoubleSpinBox>("doubleSpinBox_frequency")->stepUp();
    QMetaObject::invokeMethod(module.dialog(), "poll_input_frequency");
    if (garbage->random.bounded(3) == 0)
        QMetaObject::invokeMethod(module.dialog(), module.see("pushButton_Ok").isEmpty() ? "accept" : "reject");
}

} // namespace

/** GARBAGE_OPENINGS and GARBAGE_SEED choose more openings and other garbage. */
void TestFaults::survivesGarbage()
{
    const int openings = qMax(3000, qEnvironmentVariableIntValue("GARBAGE_OPENINGS"));
    GarbageLink garbage(static_cast<quint32>(qEnvironmentVariableIntValue("GARBAGE_SEED")));
    ControllerChannel channel(&garbage);
    int written = 0;
    connect(&channel, &ControllerChannel::executed, this, [&](const CommandRecord& record) {
        written += record.operation == Operation::Set;
        checkWritten(record);
    });
    connect(&channel, &ControllerChannel::reported, this,
            [](const QString&, const QString&, int, const QString& message) {
                QVERIFY(message.startsWith("Error: Unable to "));
            });
    LoadedModule module;
    module.loader.module()->exit_module();
    module.loader.setParameters(&channel, module.parent, &module.versions, false);
    module.element = module.loader.module()->get_gui_elements().first();
    QTimer hands;
    connect(&hands, &QTimer::timeout, this, [&] { actAtRandom(module, &garbage); });
    hands.start(0);
    QMap<int, int> results;
    for (int i = 0; i < openings && !QTest::currentTestFailed(); ++i) {
        module.versions = backend(garbage.anyOf<QString>({"0.9", "1.4", "1.10 QUILLSTONE", "1.23", "1.23"}));
        int result = -3;
        QMetaObject::invokeMethod(module.dialog(), "update_and_exec", Q_RETURN_ARG(int, result));
        ++results[result];
        QVERIFY(!module.dialog()->isVisible() && module.find<QTableWidget>("tableWidget_channels")->rowCount() <= 999);
    }
    QCOMPARE(results.keys(), QList<int>({-1, QDialog::Rejected, QDialog::Accepted}));
    QVERIFY2(written > openings / 2, qPrintable(QString::number(written)));
}

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
