#include "SessionFile.h"

#include "Files.h"

#include <QTest>

SessionFile::SessionFile(const QString& name)
{
    const QByteArrayList lines = readFile(QString(DATA_DIR "/") + name).split('\n');
    int number = 0;
    for (const QByteArray& line : lines) {
        place = name.toUtf8() + ':' + QByteArray::number(++number);
        const int blank = (line + ' ').indexOf(' ');
        if (!line.isEmpty() && !line.startsWith('#'))
            readLine(line.left(blank), line.mid(blank + 1));
    }
    if (!unused.isEmpty())
        qFatal("%s: nothing uses the list: %s", qPrintable(name), unused.join(", ").constData());
}

void SessionFile::readLine(const QByteArray& key, const QByteArray& value)
{
    static const QByteArrayList keys = {"protocol", "answer", "asks",         "unasked",   "shows",
                                        "report",   "stops",  "user",         "after",     "sends",
                                        "ok",       "cancel", "sends-report", "ok-report", "cancel-report",
                                        "ok-box",   "during", "leaves",       "before"};
    if (key == "list")
        unused.append(value);
    if (key == "list" || key == "phase")
        list = value;
    else if (key == "+")
        lists[list].append(value);
    else if (key == "case")
        sessions.append(Session{value, place, {}});
    else if (!sessions.isEmpty() && keys.contains(key.startsWith("again-") ? key.mid(6) : key))
        sessions.last().lines[key] += expanded(value);
    else
        qFatal("%s: unknown key: %s", place.constData(), key.constData());
}

/** Returns the line itself, or the lines of the list that it names, "@NAME: A|B", with its parameters filled in. */
QByteArrayList SessionFile::expanded(const QByteArray& line)
{
    if (!line.startsWith('@'))
        return {line};
    const int colon = line.indexOf(": ");
    const QByteArray name = line.mid(1, colon - 1);
    const QByteArrayList arguments = colon < 0 ? QByteArrayList() : line.mid(colon + 2).split('|');
    if (!lists.contains(name))
        qFatal("%s: unknown list: %s", place.constData(), line.constData());
    unused.removeAll(name);
    QByteArrayList found;
    for (QByteArray text : lists.value(name)) {
        for (int i = 0; i < arguments.size(); ++i)
            text.replace('%' + QByteArray::number(i + 1), arguments.at(i));
        found += expanded(text);
    }
    return found;
}

void addSessions(const char* name)
{
    QTest::addColumn<Session>("session");
    const QVector<Session> sessions = SessionFile(name).sessions;
    for (const Session& all : sessions) {
        Session session = all;
        const QByteArrayList protocols = session.lines.value("protocol", {"newest"});
        for (const QByteArray& protocol : protocols) {
            session.lines["protocol"] = {protocol};
            QTest::newRow(session.name + ", " + protocol) << session;
        }
    }
}
