#include "Session.h"

/** Whole sessions with the dialog, as data/sessions.txt tells them. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data();
    void runs();
};

namespace {

void compareWidgets(const Bench& bench, const QByteArrayList& expectations)
{
    for (const QByteArray& expected : expectations) {
        const QByteArray name = expected.left(expected.indexOf(':'));
        const QByteArray content = bench.see(name);
        QCOMPARE(name + ':' + (content.isEmpty() ? "" : " ") + content, expected);
    }
}

void compareOpening(Bench& bench, const Session& session)
{
    QByteArrayList asked = session.value("asks");
    for (const QByteArray& text : session.value("unasked"))
        asked.erase(std::remove_if(asked.begin(), asked.end(), [&](auto& line) { return line.contains(text); }),
                    asked.end());
    const QByteArrayList commands = bench.channel.takeCommands();
    if (session.contains("asks"))
        QCOMPARE(commands, asked);
    QCOMPARE(bench.channel.takeReports(), session.value("report"));
    compareWidgets(bench, session.value("shows"));
}

/** The second opening of a case. */
void openAgain(Bench& bench, const Session& session)
{
    bench.versions = backend(session.value("again-protocol", session.value("protocol")).first());
    bench.channel.script(session.value("again").join(';'));
    const bool isShown = bench.open([&] {
        compareWidgets(bench, session.value("again-shows"));
        bench.channel.takeCommands();
        for (const QByteArray& action : session.value("again-user"))
            act(bench, action);
        bench.user().leave(session.value("again-leave", {"OK"}).first());
    }) >= 0;
    QVERIFY(isShown);
    QCOMPARE(bench.channel.commands, session.value("again-sends"));
}

} // namespace

void TestSessions::runs_data()
{
    addSessions("sessions.txt");
}

void TestSessions::runs()
{
    QFETCH(Session, session);
    for (const char* way : {"OK", "Cancel", "Escape", "close"}) {
        Bench bench(session.value("protocol").first(), session.value("answer").join(';'));
        bool isOk = qstrcmp(way, "OK") == 0;
        const int result = bench.open([&] {
            compareOpening(bench, session);
            bench.channel.script(session.value("later").join(';'));
            for (const QByteArray& action : session.value("user"))
                act(bench, action);
            compareWidgets(bench, session.value("after"));
            isOk = isOk && bench.see("pushButton_Ok") != " off";
            bench.user().leave(isOk || qstrcmp(way, "OK") != 0 ? way : "Cancel");
        });
        QCOMPARE(result == -1, session.contains("stops"));
        if (result == -1)
            return compareOpening(bench, session);
        QCOMPARE(result, int(isOk ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(bench.channel.commands, session.value(isOk ? "ok" : "cancel"));
        QCOMPARE(bench.channel.reports, session.value(isOk ? "ok-report" : "cancel-report"));
        QCOMPARE(bench.boxes, isOk ? session.value("ok-box") : QByteArrayList());
        if (session.contains("again"))
            openAgain(bench, session);
    }
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
