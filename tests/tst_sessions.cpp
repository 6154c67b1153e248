#include "Session.h"

/** Whole sessions with the dialog, described in data/sessions.txt. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data();
    void runs();
};

namespace {

void compareWidgets(const LoadedModule& module, const QByteArrayList& expectations)
{
    for (const QByteArray& expected : expectations) {
        const QByteArray name = expected.left(expected.indexOf(':'));
        const QByteArray content = module.see(name);
        QCOMPARE(name + ':' + (content.isEmpty() ? "" : " ") + content, expected);
    }
}

void compareOpening(LoadedModule& module, const Session& session)
{
    QByteArrayList asked = session.value("asks");
    for (const QByteArray& text : session.value("unasked"))
        asked.erase(std::remove_if(asked.begin(), asked.end(), [&](auto& line) { return line.contains(text); }),
                    asked.end());
    const QByteArrayList commands = module.link.takeCommands();
    if (session.contains("asks"))
        QCOMPARE(commands, asked);
    QCOMPARE(module.link.takeReports(), session.value("report"));
    compareWidgets(module, session.value("shows"));
}

/** The second opening of a case. */
void openAgain(LoadedModule& module, const Session& session)
{
    module.versions = backend(session.value("again-protocol", session.value("protocol")).first());
    module.link.script(session.value("again").join(';'));
    const bool isShown = module.open([&] {
        compareWidgets(module, session.value("again-shows"));
        module.link.takeCommands();
        for (const QByteArray& action : session.value("again-user"))
            act(module, action);
        module.user().leave(session.value("again-leave", {"OK"}).first());
    }) >= 0;
    QVERIFY(isShown);
    QCOMPARE(module.link.commands, session.value("again-sends"));
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
        LoadedModule module(session.value("protocol").first(), session.value("answer").join(';'));
        bool isOk = qstrcmp(way, "OK") == 0;
        const int result = module.open([&] {
            compareOpening(module, session);
            module.link.script(session.value("later").join(';'));
            for (const QByteArray& action : session.value("user"))
                act(module, action);
            compareWidgets(module, session.value("after"));
            isOk = isOk && module.see("pushButton_Ok") != " off";
            module.user().leave(isOk || qstrcmp(way, "OK") != 0 ? way : "Cancel");
        });
        QCOMPARE(result == -1, session.contains("stops"));
        if (result == -1)
            return compareOpening(module, session);
        QCOMPARE(result, int(isOk ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(module.link.commands, session.value(isOk ? "ok" : "cancel"));
        QCOMPARE(module.link.reports, session.value(isOk ? "ok-report" : "cancel-report"));
        QCOMPARE(module.boxes, isOk ? session.value("ok-box") : QByteArrayList());
        if (session.contains("again"))
            openAgain(module, session);
    }
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
