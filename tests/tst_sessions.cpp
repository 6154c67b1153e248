#include "Files.h"
#include "SessionRun.h"

#include <QTemporaryDir>

static QByteArrayList keys()
{
    return {"protocol",    "answer",        "asks",   "unasked", "shows",      "report",      "stops",
            "later",       "user",          "after",  "sends",   "ok",         "cancel",      "sends-report",
            "ok-report",   "cancel-report", "ok-box", "again",   "again-user", "again-shows", "again-protocol",
            "again-leave", "again-sends",   "during", "leaves"};
}

/** Whole sessions with the dialog, described in data/sessions.txt. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data();
    void runs();
    void survivesEventLoops_data() { addSessions("event-loops.txt", keys()); }
    void survivesEventLoops() { runs(); }
    void findsMistakes_data();
    void findsMistakes();
};

void TestSessions::runs_data()
{
    addSessions("sessions.txt", keys());
}

void TestSessions::runs()
{
    QFETCH(Session, session);
    const QString problem = SessionRun::problemOf(session);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/** data/mistakes.txt holds small session files, each behind the message that it must give. */
void TestSessions::findsMistakes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QFile file(DATA_DIR "/mistakes.txt");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray all = '\n' + file.readAll();
    const QByteArrayList parts = all.replace("\n= ", QByteArray(1, '\0')).split('\0').mid(1);
    for (const QByteArray& part : parts) {
        const QByteArray message = part.left(part.indexOf('\n'));
        QTest::newRow(message) << part.mid(message.size() + 1) << QString(message).replace("\\n", "\n");
    }
}

void TestSessions::findsMistakes()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QTemporaryDir folder;
    writeFile(folder.filePath("a"), text);
    const SessionFile file(folder.filePath("a"), keys());
    QString found = file.mistakes.value(0);
    for (int i = 0; i < file.sessions.size() && found.isEmpty(); ++i) {
        Session session = file.sessions.at(i);
        session.lines["protocol"] = {{"1.23", 0}};
        found = SessionRun::problemOf(session);
    }
    QCOMPARE(found, message);
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
