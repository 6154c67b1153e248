#include "SessionFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <numeric>

namespace {

/** How many letters must change to make one word of the other. */
int distance(const QByteArray& a, const QByteArray& b)
{
    QVector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0]++;
        for (int j = 1; j <= b.size(); ++j) {
            const int changed = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            diagonal = row.at(j);
            row[j] = qMin(changed, qMin(row.at(j), row.at(j - 1)) + 1);
        }
    }
    return row.last();
}

} // namespace

QString unknown(const QByteArray& name, const QByteArrayList& known)
{
    const auto isNearer = [&](const QByteArray& a, const QByteArray& b) {
        return distance(a, name) < distance(b, name);
    };
    const auto nearest = std::min_element(known.begin(), known.end(), isNearer);
    const QString hint = nearest == known.end() ? QString() : QString("; the nearest is \"%1\"").arg(QString(*nearest));
    return QString("\"%1\" is unknown%2").arg(QString(name), hint);
}

QByteArrayList Session::texts(const QByteArray& key) const
{
    QByteArrayList all;
    for (const SessionLine& line : lines.value(key))
        all.append(line.text);
    return all;
}

QByteArray Session::text(const QByteArray& key, const QByteArray& otherwise) const
{
    return texts(key).value(0, otherwise);
}

QString Session::problem(const QString& what, int line) const
{
    return QString("%1:%2: %3: %4").arg(QString(file)).arg(line > 0 ? line : number).arg(QString(name), what);
}

SessionFile::SessionFile(const QString& path, const QByteArrayList& keys)
    : file(QFileInfo(path).fileName().toUtf8()), keys(keys)
{
    QFile input(path);
    if (!input.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(input.errorString()));
    while (!input.atEnd()) {
        const QByteArray line = input.readLine().replace('\n', "");
        ++number;
        const int blank = (line + ' ').indexOf(' ');
        if (!line.isEmpty() && !line.startsWith('#'))
            readLine(line.left(blank), line.mid(blank + 1));
    }
}

void SessionFile::readLine(const QByteArray& key, const QByteArray& value)
{
    const auto hasName = [&](const Session& session) { return session.name == value; };
    if (value.isEmpty())
        return mistake("a text is expected behind \"" + key + '"');
    if (key == "list") {
        list = value;
    } else if (key == "+") {
        lists[list].append(value);
    } else if (key == "case") {
        if (std::any_of(sessions.begin(), sessions.end(), hasName))
            mistake("there is a case \"" + value + "\" already");
        sessions.append({file, value, number, {}});
    } else if (!keys.contains(key)) {
        mistake("key " + unknown(key, keys + QByteArrayList{"case", "list"}));
    } else if (sessions.isEmpty()) {
        mistake("no case has begun");
    } else {
        const QByteArrayList texts = expanded(value);
        for (QByteArray text : texts)
            sessions.last().lines[key].append(
                {text.replace("\\s", " ").replace("\\t", "\t").replace("\\e", "\xE4"), number});
    }
}

/** The line itself, or the lines that it stands for: a range of numbers, or a list with its parameters filled in. */
QByteArrayList SessionFile::expanded(const QByteArray& text)
{
    static const QRegularExpression range(R"(\[(\d\d)-(\d\d)\])");
    const QRegularExpressionMatch match = range.match(text);
    QByteArrayList lines;
    if (match.hasMatch()) {
        for (int i = match.captured(1).toInt(); i <= match.captured(2).toInt(); ++i) {
            QByteArray line = text;
            lines += expanded(line.replace(match.captured().toUtf8(), QByteArray::number(100 + i).mid(1)));
        }
        return lines;
    }
    if (!text.startsWith('@'))
        return {text};
    const int colon = text.indexOf(": ");
    const QByteArray name = text.mid(1, colon - 1);
    for (const QByteArray& line : filled(name, colon < 0 ? QByteArrayList() : text.mid(colon + 2).split('|')))
        lines += expanded(line);
    return lines;
}

QByteArrayList SessionFile::filled(const QByteArray& name, const QByteArrayList& arguments)
{
    if (name == "nothing")
        return {};
    if (!lists.contains(name))
        mistake("list " + unknown(name, lists.keys()));
    QByteArrayList lines = lists.value(name);
    for (int i = 0; i < arguments.size(); ++i) {
        const QByteArray parameter = '%' + QByteArray::number(i + 1);
        if (arguments.at(i).isEmpty() || !lines.join().contains(parameter))
            mistake(QString("parameter %1 of \"%2\" is %3")
                        .arg(i + 1)
                        .arg(QString(name), arguments.at(i).isEmpty() ? "empty" : "not used"));
        for (QByteArray& line : lines)
            line.replace(parameter, arguments.at(i));
    }
    if (QString(lines.join()).contains(QRegularExpression("%\\d")))
        mistake("\"" + name + "\" needs more parameters");
    return lines;
}

void SessionFile::mistake(const QString& what)
{
    mistakes.append(QString("%1:%2: %3").arg(QString(file)).arg(number).arg(what));
}

void addSessions(const char* name, const QByteArrayList& keys)
{
    QTest::addColumn<Session>("session");
    const SessionFile file(QString(DATA_DIR "/") + name, keys);
    QVERIFY2(file.mistakes.isEmpty(), qPrintable(file.mistakes.join('\n')));
    for (Session session : file.sessions) {
        for (const SessionLine& protocol : session.lines.value("protocol", {{"1.23", 0}})) {
            session.lines["protocol"] = {protocol};
            QTest::newRow(session.name + ", " + protocol.text) << session;
        }
    }
}
