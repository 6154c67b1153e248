#include "RecordedTable.h"

#include "ControllerFile.h"
#include "ControllerVocabulary.h"
#include "Recording.h"

#include <QFileInfo>

/** Adds the answer in \a line unless an earlier line has given it. */
static void add(const RecordedLine& line, ControllerTable* table)
{
    const int blank = line.text.indexOf(' ');
    const QByteArray command = line.text.mid(blank + 1);
    AnswerRow row = {command, line.answer, !line.isAnswered};
    const bool isSet = line.text.startsWith("set ") || command.startsWith("zorvan2 set ");
    const QByteArray echo = command + ' ';
    if (isSet && line.isAnswered)
        return;
    if (isSet && line.text.startsWith("set "))
        row.command = line.text;
    else if (command.startsWith("zorvan2 get ") && line.answer.startsWith(echo))
        row = {command.mid(12), line.answer.mid(echo.size())};
    const AnswerRow* earlier = table->find(row.command);
    if (earlier && (earlier->answer != row.answer || earlier->isFailure != row.isFailure))
        row.command = line.text; // Another operation may be answered otherwise.
    if (!table->find(row.command))
        table->insert(row);
}

QString readRecordedTable(const QString& file, ControllerTable* table)
{
    QVector<RecordedLine> lines;
    QString problem = readRecording(file, &lines);
    NamedController full;
    if (problem.isEmpty())
        problem = readController("full", &full);
    if (!problem.isEmpty())
        return problem;
    readConnection(lines.takeFirst().text, &table->identity);
    int unknownCommands = 0;
    for (const RecordedLine& line : qAsConst(lines)) {
        if (line.text.startsWith("connect "))
            break;
        if (commandFault(line.text).isEmpty())
            add(line, table);
        else
            ++unknownCommands;
    }
    const int recorded = table->rows().size();
    for (const AnswerRow& row : full.table.rows()) {
        if (!table->find(row.command))
            table->insert({row.command, row.answer, row.isFailure});
    }
    table->description = QString("Recording %1: %2 answers, %3 more as in full")
                             .arg(QFileInfo(file).fileName())
                             .arg(recorded)
                             .arg(table->rows().size() - recorded);
    if (unknownCommands > 0)
        table->description += QString(", %1 unknown commands left out").arg(unknownCommands);
    return {};
}
