#include "RecordedTable.h"

#include "ControllerFile.h"
#include "ControllerVocabulary.h"
#include "Recording.h"

#include <QFileInfo>
#include <QSet>

static constexpr char rawRead[] = "zorvan2 get ";

/** Adds the first answer to a command. A write that succeeded adds nothing. */
static void add(const RecordedLine& line, ControllerTable* table)
{
    const QByteArray command = line.text.mid(line.text.indexOf(' ') + 1);
    const bool isSet = line.text.startsWith("set ");
    if ((isSet || command.startsWith("zorvan2 set ")) && line.isAnswered)
        return;
    AnswerRow row = {isSet ? line.text : command, line.answer, !line.isAnswered};
    if (command.startsWith(rawRead) && line.answer.startsWith(command + ' '))
        row = {command.mid(static_cast<int>(qstrlen(rawRead))), line.answer.mid(command.size() + 1)};
    const AnswerRow* const earlier = table->find(row.command);
    if (earlier && (earlier->answer != row.answer || earlier->isFailure != row.isFailure))
        row = {line.text, line.answer, !line.isAnswered}; // Another operation had a different answer.
    table->insert(row);
}

QString readRecordedTable(const QStringList& files, ControllerTable* table)
{
    QVector<RecordedLine> lines;
    QString problem = readRecording(files.first(), &lines);
    ControllerTable full;
    if (problem.isEmpty())
        problem = readTable("full", files, &full);
    if (!problem.isEmpty())
        return problem;
    readConnection(lines.takeFirst().text, &table->identity);
    int unknownCommands = 0;
    QSet<QByteArray> asked;
    for (const RecordedLine& line : qAsConst(lines)) {
        if (line.text.startsWith("connect "))
            break;
        if (asked.contains(line.text))
            continue;
        asked.insert(line.text);
        if (commandFault(line.text).isEmpty())
            add(line, table);
        else
            ++unknownCommands;
    }
    const int recorded = table->rows().size();
    for (const AnswerRow& row : full.rows()) {
        if (!table->find(row.command))
            table->insert(row);
    }
    table->description = QString("Recording %1: %2 answers, %3 more as in full")
                             .arg(QFileInfo(files.first()).fileName())
                             .arg(recorded)
                             .arg(table->rows().size() - recorded);
    if (unknownCommands > 0)
        table->description += QString(", %1 unknown commands left out").arg(unknownCommands);
    return {};
}
