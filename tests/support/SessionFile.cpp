#include "SessionFile.h"

#include "ControllerVocabulary.h"
#include "Files.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

QByteArray Session::text(const QByteArray& key, const QByteArray& otherwise) const
{
    return lines.value(key, {{otherwise, 0}}).first().text;
}

QString Session::problem(const QString& what, int line) const
{
    return QString("%1:%2: %3: %4").arg(QString(file)).arg(line > 0 ? line : number).arg(QString(name), what);
}

SessionFile::SessionFile(const QString& path, const QByteArrayList& keys) : file(QFileInfo(path).fileName().toUtf8())
{
    const QByteArrayList lines = readFile(path).split('\n');
    for (const QByteArray& line : lines) {
        ++number;
        const int blank = (line + ' ').indexOf(' ');
        if (!line.isEmpty() && !line.startsWith('#'))
            readLine(line.left(blank), line.mid(blank + 1), keys);
    }
}

void SessionFile::readLine(const QByteArray& key, const QByteArray& value, const QByteArrayList& keys)
{
    if (key == "list")
        list = value;
    else if (key == "+")
        lists[list].append(value);
    else if (key == "case")
        sessions.append({file, value, number, {}});
    else if (!keys.contains(key))
        demand(false, "key " + unknown(key, keys + QByteArrayList{"case", "list"}));
    else if (sessions.isEmpty())
        demand(false, "no case has begun");
    else
        readLineOfCase(key, value);
}

void SessionFile::readLineOfCase(const QByteArray& key, const QByteArray& value)
{
    const QByteArrayList texts = expanded(value);
    for (const QByteArray& text : texts) {
        // An answer is a line of a controller file, which has escapes of its own.
        const bool isAnswer = key.endsWith("answer") || key.endsWith("later") || text.startsWith("answer ");
        sessions.last().lines[key].append({isAnswer ? text : QByteArray(text).replace("\\x20", " "), number});
    }
}

/** The line itself, or the lines that it stands for: a range of numbers, or a list. */
QByteArrayList SessionFile::expanded(const QByteArray& text)
{
    static const QRegularExpression range(R"(\[(\d\d)-(\d\d)\])");
    const QRegularExpressionMatch match = range.match(text);
    if (!match.hasMatch() && !text.startsWith('@'))
        return {text};
    QByteArrayList found = match.hasMatch() ? QByteArrayList() : listed(text.mid(1));
    for (int i = match.captured(1).toInt(); match.hasMatch() && i <= match.captured(2).toInt(); ++i)
        found += QByteArray(text).replace(match.captured().toUtf8(), QByteArray::number(100 + i).mid(1));
    QByteArrayList lines;
    for (const QByteArray& line : qAsConst(found))
        lines += expanded(line);
    return lines;
}

/** The lines of the list that \a call names, "NAME: A|B", with its parameters filled in. */
QByteArrayList SessionFile::listed(const QByteArray& call)
{
    const QByteArray name = call.mid(0, call.indexOf(": "));
    const QByteArrayList arguments = call == name ? QByteArrayList() : call.mid(name.size() + 2).split('|');
    demand(lists.contains(name), "list " + unknown(name, lists.keys()));
    called.insert(name);
    QByteArray all = lists.value(name).join('\n');
    static const QRegularExpression parameters("%\\d");
    bool isFilled = true;
    for (int i = 0; i < arguments.size(); ++i) {
        const QByteArray parameter = '%' + QByteArray::number(i + 1);
        isFilled = isFilled && all.contains(parameter);
        all.replace(parameter, arguments.at(i));
    }
    demand(isFilled && !QString(all).contains(parameters), "list \"" + name + "\" has other parameters");
    return all.split('\n');
}

void SessionFile::demand(bool condition, const QString& otherwise)
{
    if (!condition)
        mistakes.append(QString("%1:%2: %3").arg(QString(file)).arg(number).arg(otherwise));
}

void addSessions(const char* name, const QByteArrayList& keys)
{
    QTest::addColumn<Session>("session");
    const SessionFile file(QString(DATA_DIR "/") + name, keys);
    QVERIFY2(file.mistakes.isEmpty(), qPrintable(file.mistakes.join('\n')));
    for (const Session& all : file.sessions) {
        Session session = all;
        const SessionLines protocols = session.lines.value("protocol", {{"newest", 0}});
        for (const SessionLine& protocol : protocols) {
            session.lines["protocol"] = {protocol};
            QTest::newRow(session.name + ", " + protocol.text) << session;
        }
    }
}
