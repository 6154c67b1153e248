#include "Files.h"
#include "SessionRun.h"

#include <QTemporaryDir>

/** Whole sessions with the dialog, described in data/sessions.txt. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data() { addSessions("sessions.txt", SessionRun::keys()); }
    void runs();
    void survivesEventLoops_data() { addSessions("event-loops.txt", SessionRun::keys()); }
    void survivesEventLoops() { runs(); }
    void findsMistakes_data();
    void findsMistakes();
};

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
    const QByteArray all = readFile(DATA_DIR "/mistakes.txt").replace("\n= ", QByteArray(1, '\0'));
    const QByteArrayList parts = all.split('\0').mid(1);
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
    const SessionFile file(folder.filePath("a"), SessionRun::keys());
    QString found = file.mistakes.value(0);
    for (int i = 0; i < file.sessions.size() && found.isEmpty(); ++i)
        found = SessionRun::problemOf(file.sessions.at(i));
    QCOMPARE(found, message);
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
