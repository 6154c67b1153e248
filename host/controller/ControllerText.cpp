#include "ControllerText.h"

#include "ControllerFile.h"
#include "ControllerVocabulary.h"
#include "WireText.h"

#include <QRegularExpression>

static constexpr int maximumRows = 20000;
static constexpr char tooManyRows[] = "more than 20000 rows";
static constexpr char failure[] = "!";

/** Returns \a latin1 as a string, including NUL bytes. */
static QString textOf(const QByteArray& latin1)
{
    return QString::fromLatin1(latin1.constData(), latin1.size());
}

QString ControllerText::read(const QString& line)
{
    const QString text = line.trimmed();
    if (text.isEmpty() || text.startsWith('#'))
        return {};
    const int separator = text.indexOf('=');
    fault = textFault(text);
    demand(separator >= 0, "\"COMMAND = ANSWER\" is expected");
    const QString left = text.left(separator).trimmed();
    const QString right = text.mid(separator + 1).trimmed();
    if (!fault.isEmpty())
        return fault;
    if (QStringList{"description", "from", "protocol", "model"}.contains(left))
        readHeader(left, right);
    else
        expand(left, right);
    return fault;
}

void ControllerText::readHeader(const QString& key, const QString& value)
{
    demandFirst(key.toLatin1());
    if (key == "protocol")
        fault += readProtocol(value, &table->identity.protocol);
    else if (key == "from")
        readBase(value);
    else
        (key == "model" ? table->identity.model : table->description) = textOf(unescaped(value));
}

/** Starts from another table. Keeps the header lines before. */
void ControllerText::readBase(const QString& name)
{
    ControllerTable base;
    demand(!files.isEmpty() && !hasAnswers, "\"from\" is allowed only in a file, before all answers");
    const QString problem = fault.isEmpty() ? readTable(name, files, &base) : fault;
    demand(problem.isEmpty(), "from " + problem);
    base.description = table->description;
    if (seen.contains("protocol"))
        base.identity.protocol = table->identity.protocol;
    if (seen.contains("model"))
        base.identity.model = table->identity.model;
    *table = base;
}

/** Reads a line, or one line for each number of a range. The same range in the answer counts along. */
void ControllerText::expand(const QString& command, const QString& answer)
{
    static const QRegularExpression range(R"(\[(\d+)-(\d+)\])");
    const QRegularExpressionMatch match = range.match(command);
    if (!match.hasMatch())
        return readAnswer(command, answer);
    const double first = match.captured(1).toDouble();
    const double last = match.captured(2).toDouble();
    demand(first <= last, "the range " + match.captured() + " runs backward");
    demand(last - first < maximumRows, tooManyRows);
    for (int i = 0; first + i <= last && fault.isEmpty(); ++i) {
        const QString digits = QString::number(first + i, 'f', 0).rightJustified(match.capturedLength(1), '0');
        QString next = command;
        next.replace(match.capturedStart(), match.capturedLength(), digits);
        expand(next, QString(answer).replace(match.captured(), digits));
    }
}

void ControllerText::readAnswer(const QString& command, const QString& answer)
{
    AnswerRow row = {unescaped(command), unescaped(answer), answer == failure};
    if (row.isFailure)
        row.answer.clear();
    const QString problem = commandFault(row.command);
    demand(problem.isEmpty(), problem);
    demand(!row.command.startsWith("set ") || row.answer.isEmpty(),
           "a write has no answer. Leave it empty to accept the write, or write \"!\" to refuse it.");
    demandFirst(row.command);
    table->insert(row);
    hasAnswers = true;
    demand(table->rows().size() <= maximumRows, tooManyRows);
}

/** Keeps the first fault in a line. */
void ControllerText::demand(bool condition, const QString& otherwise)
{
    if (!condition && fault.isEmpty())
        fault = otherwise;
}

void ControllerText::demandFirst(const QByteArray& left)
{
    demand(!seen.contains(left), '"' + escaped(left) + "\" appears twice");
    seen.insert(left);
}

QString readProtocol(const QString& text, VersionInfo* protocol)
{
    bool isVersion = false;
    if (!text.contains('-'))
        protocol->fromString(text, &isVersion);
    return isVersion ? QString() : '"' + text + "\" is not a protocol version such as 1.23 or 1.23.0";
}

QString changeTable(ControllerTable* table, const QString& lines)
{
    ControllerTable changed = *table;
    ControllerText text(&changed);
    const QStringList all = linesOf(lines.toUtf8());
    for (int i = 0; i < all.size(); ++i) {
        QString fault = text.read(all.at(i));
        if (!fault.isEmpty())
            return all.size() == 1 ? fault : QString("line %1: %2").arg(i + 1).arg(fault);
    }
    *table = changed;
    return {};
}

/** Writes blanks at the ends as their codes, because reading a file drops blanks. */
QString written(const QByteArray& text)
{
    QString line = escaped(text);
    if (!line.isEmpty() && line.back().isSpace())
        line.replace(line.size() - 1, 1, escapeOf(line.back()));
    if (!line.isEmpty() && line.front().isSpace())
        line.replace(0, 1, escapeOf(line.front()));
    return line;
}

static QString writtenCommand(const AnswerRow& row)
{
    return written(row.command).replace('=', "\\x3d").replace('[', "\\x5b");
}

static QString writtenAnswer(const AnswerRow& row)
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
