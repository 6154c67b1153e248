#include "ControllerText.h"

#include "ControllerFile.h"
#include "ControllerVocabulary.h"
#include "WireText.h"

#include <QRegularExpression>

namespace {

constexpr int maximumRows = 20000;
constexpr char failure[] = "!";

struct Line
{
    QString command;
    QString answer;
};

/** Appends to \a rows the lines that \a line stands for. A range in the answer counts along with the command's. */
QString expand(const Line& line, QVector<Line>* rows)
{
    static const QRegularExpression range(R"(\[(\d{1,9})-(\d{1,9})\])");
    const QRegularExpressionMatch match = range.match(line.command);
    if (!match.hasMatch()) {
        rows->append(line);
        return {};
    }
    const int last = match.captured(2).toInt();
    int number = match.captured(1).toInt();
    if (number > last)
        return "the range " + match.captured() + " runs backward";
    for (; number <= last; ++number) {
        const QString digits = QString("%1").arg(number, match.capturedLength(1), 10, QChar('0'));
        Line next = line;
        next.command.replace(match.capturedStart(), match.capturedLength(), digits);
        next.answer.replace(match.captured(), digits);
        QString fault = expand(next, rows);
        if (fault.isEmpty() && rows->size() > maximumRows)
            fault = QString("more than %1 rows").arg(maximumRows);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

} // namespace

QString ControllerText::read(const QString& line, int number)
{
    const QString text = line.trimmed();
    QString fault = characterFault(line);
    if (!fault.isEmpty() || text.isEmpty() || text.startsWith('#'))
        return fault;
    fault = textFault(text);
    const int separator = text.indexOf('=');
    if (fault.isEmpty() && separator < 0)
        fault = "\"COMMAND = ANSWER\" is expected";
    if (!fault.isEmpty())
        return fault;
    const QString left = text.left(separator).trimmed();
    const QString right = text.mid(separator + 1).trimmed();
    const bool isHeader = QStringList{"description", "from", "protocol", "model"}.contains(left);
    return isHeader ? readHeader(left, right) : readAnswer(left, right, number);
}

QString ControllerText::readHeader(const QString& key, const QString& value)
{
    const bool isFirst = !seen.contains(key);
    seen.insert(key);
    if (!isFirst)
        return '"' + key + "\" stands here twice";
    if (key == "protocol")
        return readProtocol(value, &table->identity.protocol);
    if (key == "from")
        return readBase(value);
    const QString text = QString::fromLatin1(unescaped(value));
    (key == "model" ? table->identity.model : table->description) = text;
    return {};
}

/** Begins with another table. What has been read of the header before stays. */
QString ControllerText::readBase(const QString& name)
{
    if (files.isEmpty() || hasAnswers)
        return "\"from\" stands only in a file, before all answers";
    ControllerTable base;
    const QString fault = readTable(name, files, &base);
    if (!fault.isEmpty())
        return "from " + fault;
    base.forgetLines();
    base.description = table->description;
    if (seen.contains("protocol"))
        base.identity.protocol = table->identity.protocol;
    if (seen.contains("model"))
        base.identity.model = table->identity.model;
    *table = base;
    return {};
}

QString ControllerText::readAnswer(const QString& command, const QString& answer, int number)
{
    hasAnswers = true;
    QVector<Line> lines;
    QString fault = expand({command, answer}, &lines);
    for (const Line& line : qAsConst(lines)) {
        const bool isFailure = line.answer == failure;
        const AnswerRow row = {unescaped(line.command), isFailure ? "" : unescaped(line.answer), isFailure, number};
        if (fault.isEmpty())
            fault = commandFault(row.command);
        if (fault.isEmpty() && row.command.startsWith("set ") && !line.answer.isEmpty() && !row.isFailure)
            fault = "a write has no answer: leave it empty to accept the write, or refuse it by \"!\"";
        if (fault.isEmpty() && seen.contains(line.command))
            fault = '"' + line.command + "\" stands here twice";
        if (!fault.isEmpty())
            return fault;
        seen.insert(line.command);
        table->insert(row);
    }
    return table->rows().size() > maximumRows ? QString("more than %1 rows").arg(maximumRows) : fault;
}

QString readProtocol(const QString& text, VersionInfo* protocol)
{
    VersionInfo read(0, 0, 0);
    bool isVersion = false;
    read.fromString(text, &isVersion);
    if (!isVersion || text.contains('-'))
        return '"' + text + "\" is not a protocol version such as 1.23 or 1.23.0";
    *protocol = read;
    return {};
}

QString changeTable(ControllerTable* table, const QString& lines)
{
    ControllerTable changed = *table;
    changed.forgetLines();
    ControllerText text(&changed);
    const QStringList all = linesOf(lines.toUtf8());
    for (int i = 0; i < all.size(); ++i) {
        QString fault = text.read(all.at(i), i + 1);
        if (!fault.isEmpty())
            return all.size() == 1 ? fault : QString("line %1: %2").arg(i + 1).arg(fault);
    }
    *table = changed;
    return {};
}

/** Blanks at the ends are dropped when a file is read, so they are written by their codes. */
QString written(const QByteArray& text)
{
    QString line = escaped(text);
    if (!line.isEmpty() && line.back().isSpace())
        line.replace(line.size() - 1, 1, escapeOf(line.back()));
    if (!line.isEmpty() && line.front().isSpace())
        line.replace(0, 1, escapeOf(line.front()));
    return line;
}

QString writtenCommand(const AnswerRow& row)
{
    return written(row.command).replace('=', "\\x3d").replace('[', "\\x5b");
}

QString writtenAnswer(const AnswerRow& row)
{
    if (row.isFailure)
        return failure;
    return row.answer == failure ? "\\x21" : written(row.answer);
}

QByteArray written(const ControllerTable& table)
{
    QStringList lines = {"description = " + written(table.description.toLatin1()),
                         "protocol = " + table.identity.protocol.toString(),
                         "model = " + written(table.identity.model.toLatin1()), QString()};
    for (const AnswerRow& row : table.rows())
        lines.append((writtenCommand(row) + " = " + writtenAnswer(row)).trimmed());
    return (lines.join('\n') + '\n').toUtf8();
}
