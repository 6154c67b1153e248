#include "Recording.h"

#include "VersionInfo.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/** Latin-1 of the wire as UTF-8 on one line. In a command the arrow before the answer must not seem to come. */
QByteArray escaped(const QByteArray& text)
{
    QString line = QString::fromLatin1(text);
    line.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace("->", "\\->");
    return line.toUtf8();
}

QByteArray unescaped(const QString& text)
{
    QByteArray bytes = text.toLatin1();
    for (int i = bytes.indexOf('\\'); i >= 0; i = bytes.indexOf('\\', i + 1)) {
        bytes.remove(i, 1);
        if (bytes.at(i) == 'n')
            bytes[i] = '\n';
        else if (bytes.at(i) == 'r')
            bytes[i] = '\r';
    }
    return bytes;
}

bool isVersion(const QString& text)
{
    bool isOne = false;
    VersionInfo version(0, 0, 0);
    version.fromString(text, &isOne);
    return isOne && version.toString() == text;
}

/** Reads one line; a null reason when it is whole. */
QString readLine(const QString& line, CommandRecord* record)
{
    static const QRegularExpression form(R"(^(\S+) (\S+) (.*?)( ->(?: (.*))?| failed)$)");
    static const QRegularExpression escapes(R"(^(?:[^\\]|\\[nr\\-])*$)");
    static const QByteArrayList operations = {"connect", "send", "get", "int", "double", "bool", "set"};
    if (QString::fromLatin1(line.toLatin1()) != line)
        return "a character that is not Latin-1, or no UTF-8";
    if (!escapes.match(line).hasMatch())
        return R"(an unknown "\"; the character itself is written "\\")";
    const QRegularExpressionMatch match = form.match(line);
    if (!match.hasMatch())
        return R"("SECONDS OPERATION COMMAND -> ANSWER" or "... failed" is expected)";
    bool isTime = false;
    match.captured(1).toDouble(&isTime);
    if (!isTime)
        return QString("seconds are expected, \"%1\" is found").arg(match.captured(1));
    if (!operations.contains(match.captured(2).toLatin1()))
        return QString("unknown operation \"%1\"").arg(match.captured(2));
    if (match.captured(2) == "connect" && !isVersion(match.captured(3).section(' ', 0, 0)))
        return "a protocol version such as 1.23.0 is expected behind \"connect\"";
    *record = {match.captured(2).toLatin1(), unescaped(match.captured(3)), unescaped(match.captured(5)),
               match.captured(4) == " failed" ? -1 : 0};
    return {};
}

} // namespace

QByteArray toLine(const CommandRecord& record, qint64 milliseconds)
{
    const QByteArray seconds = QByteArray::number(static_cast<double>(milliseconds) / 1000.0, 'f', 3);
    return seconds + ' ' + record.operation + ' ' + escaped(record.command)
           + (record.result == 0 ? " -> " + escaped(record.answer) : " failed") + '\n';
}

bool readRecording(const QString& file, QVector<RecordedCommand>* commands, QString* error)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = file + ": " + input.errorString();
        return false;
    }
    const QStringList lines = QString::fromUtf8(input.readAll()).split('\n');
    QString reason = lines.first() + '\n' == recordingHeader ? QString() : "this is no recording";
    int line = 1;
    for (; reason.isEmpty() && line < lines.size(); ++line) {
        const QString& text = lines.at(line);
        CommandRecord record;
        if (text.isEmpty() || text.startsWith('#'))
            continue;
        reason = readLine(text, &record);
        commands->append({record, line + 1});
    }
    if (reason.isEmpty() && (commands->isEmpty() || commands->first().record.operation != "connect")) {
        reason = "it does not begin with a \"connect\"";
        line = commands->isEmpty() ? 2 : commands->first().line;
    }
    if (reason.isEmpty())
        return true;
    *error = QString("%1:%2: %3").arg(file).arg(line).arg(reason);
    return false;
}
