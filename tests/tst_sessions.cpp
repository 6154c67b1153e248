#include "Bench.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QTableWidget>

/** The lines of a case by their key. */
using Session = QMap<QByteArray, QByteArrayList>;
Q_DECLARE_METATYPE(Session)

/** Whole sessions with the dialog, as data/sessions.txt tells them. */
class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void runs_data();
    void runs();
};

namespace {

using Lists = QMap<QByteArray, QByteArrayList>;

/** The line itself, or for "@NAME A|B" the lines of that list. */
QByteArrayList expanded(const QByteArray& line, const Lists& lists)
{
    if (!line.startsWith('@'))
        return {line};
    for (auto list = lists.begin(); list != lists.end(); ++list) {
        if (line != '@' + list.key() && !line.startsWith('@' + list.key() + ' '))
            continue;
        const QByteArrayList arguments = line.mid(list.key().size() + 2).split('|');
        QByteArrayList lines = list.value();
        for (QByteArray& expandedLine : lines) {
            for (int i = 0; i < arguments.size(); ++i)
                expandedLine.replace('%' + QByteArray::number(i + 1), arguments.at(i));
        }
        return lines;
    }
    return line == "@nothing" ? QByteArrayList() : QByteArrayList{"no list for " + line};
}

void compareWidgets(const Bench& bench, const QByteArrayList& expectations)
{
    for (const QByteArray& expected : expectations) {
        const QByteArray name = expected.left(expected.indexOf(':'));
        const QByteArray content = bench.see(name);
        QCOMPARE(name + ':' + (content.isEmpty() ? "" : " ") + content, expected);
    }
}

/** Does what the words say, by keys and mouse where a user has them. */
void act(Bench& bench, const QByteArray& action)
{
    const QByteArrayList words = action.split(' ');
    const QByteArray argument = action.mid(words.value(0).size() + words.value(1).size() + 2);
    if (words.at(0) == "key")
        QTest::keyClick(bench.find<QWidget>(words.at(1)), Qt::Key(QKeySequence(QString(argument))[0]));
    else if (words.at(0) == "choose")
        bench.user().choose(words.at(1), argument);
    else if (words.at(0) == "deselect")
        bench.find<QComboBox>(words.at(1))->setCurrentIndex(-1);
    else if (words.at(0) == "click")
        bench.user().clickCell(words.at(1).toInt(), argument.toInt());
    else if (words.at(0) == "delay")
        DialogUser::type(bench.user().editDelay(words.at(1).toInt()), argument);
    else if (words.at(0) == "text")
        bench.find<QTableWidget>("tableWidget_channels")->item(words.at(1).toInt(), 1)->setText(words.at(3));
    else if (words.at(0) == "take")
        delete bench.find<QTableWidget>("tableWidget_channels")->takeItem(words.at(1).toInt(), argument.toInt());
    else if (words.at(0) == "answer")
        bench.channel.script(action.mid(7));
    else if (action == "poll")
        QMetaObject::invokeMethod(bench.dialog(), "poll_input_frequency");
    else
        QFAIL("unknown action " + action);
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

} // namespace

void TestSessions::runs_data()
{
    QTest::addColumn<Session>("session");
    QFile file(DATA_DIR "/sessions.txt");
    QVERIFY(file.open(QIODevice::ReadOnly));
    Lists lists;
    QVector<Session> sessions;
    QByteArray list;
    const QByteArrayList fileLines =
        file.readAll().replace("\\s", " ").replace("\\t", "\t").replace("\\e", "\xE4").split('\n');
    for (const QByteArray& line : fileLines) {
        const QByteArray key = line.left(line.indexOf(' '));
        const QByteArray value = line.mid(key.size() + 1);
        if (key == "list")
            list = value;
        else if (key == "+")
            lists[list].append(value);
        else if (key == "case")
            sessions.append({{"name", {value}}});
        else if (!key.isEmpty() && key != "#")
            sessions.last()[key] += expanded(value, lists);
    }
    for (const Session& session : qAsConst(sessions))
        QTest::newRow(session.value("name").first()) << session;
}

void TestSessions::runs()
{
    QFETCH(Session, session);
    const QByteArrayList versions = session.value("protocol", {"1.23"}).first().split(' ');
    for (const char* way : {"OK", "Cancel", "Escape", "close"}) {
        Bench bench(versions.first(), session.value("answer").join(';'), versions.mid(1).join(' '));
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
    }
}

QTEST_MAIN(TestSessions)
#include "tst_sessions.moc"
