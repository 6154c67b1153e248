#include "SessionFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

QString unknown(const QByteArray& name, const QByteArrayList& known)
{
    const auto alike = [&](const QByteArray& other) {
        return std::mismatch(name.begin(), name.end(), other.begin(), other.end()).first - name.begin();
    };
    const auto isLess = [&](const QByteArray& a, const QByteArray& b) { return alike(a) < alike(b); };
    const QByteArray nearest = *std::max_element(known.begin(), known.end(), isLess);
    return QString(R"("%1" is unknown; the nearest is "%2")").arg(QString(name), QString(nearest));
}

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
    QFile input(path);
    if (!input.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(input.errorString()));
    for (number = 1; !input.atEnd(); ++number) {
        const QByteArray line = input.readLine().replace('\n', "").replace("\\s", " ").replace("\\t", "\t");
        const int blank = (line + ' ').indexOf(' ');
        if (!line.isEmpty() && !line.startsWith('#'))
            readLine(line.left(blank), line.mid(blank + 1).replace("\\e", "\xE4"), keys);
    }
}

void SessionFile::readLine(const QByteArray& key, const QByteArray& value, const QByteArrayList& keys)
{
    const auto hasName = [&](const Session& session) { return session.name == value; };
    demand(!value.isEmpty(), "a text is expected behind \"" + key + '"');
    if (key == "list") {
        list = value;
    } else if (key == "+") {
        lists[list].append(value);
    } else if (key == "case") {
        demand(std::none_of(sessions.begin(), sessions.end(), hasName), "there is a case \"" + value + "\" already");
        sessions.append({file, value, number, {}});
    } else {
        demand(keys.contains(key), "key " + unknown(key, keys + QByteArrayList{"case", "list"}));
        demand(!sessions.isEmpty(), "no case has begun");
        const QByteArrayList texts = expanded(value);
        for (int i = 0; i < texts.size() && !sessions.isEmpty(); ++i)
            sessions.last().lines[key].append({texts.at(i), number});
    }
}

/** The line itself, or the lines that it stands for: a range of numbers, or a list with its parameters filled in. */
QByteArrayList SessionFile::expanded(const QByteArray& text)
{
    static const QRegularExpression range(R"(\[(\d\d)-(\d\d)\])");
    const QRegularExpressionMatch match = range.match(text);
    QByteArrayList lines;
    for (int i = match.captured(1).toInt(); i <= match.captured(2).toInt() && match.hasMatch(); ++i)
        lines += expanded(QByteArray(text).replace(match.captured().toUtf8(), QByteArray::number(100 + i).mid(1)));
    if (match.hasMatch() || !text.startsWith('@') || text == "@nothing")
        return text == "@nothing" || match.hasMatch() ? lines : QByteArrayList{text};
    const QByteArray name = text.mid(1, text.indexOf(": ") - 1);
    const QByteArrayList arguments = text.mid(name.size() + 3).split('|');
    demand(lists.contains(name), "list " + unknown(name, lists.keys()));
    QByteArray all = lists.value(name).join('\n');
    for (int i = 0; i < arguments.size() && text != '@' + name; ++i) {
        const QByteArray parameter = '%' + QByteArray::number(i + 1);
        demand(all.contains(parameter), "\"" + name + "\" does not use parameter " + parameter);
        demand(!arguments.at(i).isEmpty(), "parameter " + parameter + " of \"" + name + "\" is empty");
        all.replace(parameter, arguments.at(i));
    }
    static const QRegularExpression unfilled("%\\d");
    demand(!QString(all).contains(unfilled), "\"" + name + "\" needs more parameters");
    const QByteArrayList filled = all.split('\n');
    for (const QByteArray& line : filled)
        lines += expanded(line);
    return lines;
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
        const SessionLines protocols = all.lines.value("protocol", {{"1.23", 0}});
        for (const SessionLine& protocol : protocols) {
            session.lines["protocol"] = {protocol};
            QTest::newRow(session.name + ", " + protocol.text) << session;
        }
    }
}
