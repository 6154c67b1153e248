#include "ScriptedController.h"

#include "ControllerFile.h"
#include "ControllerText.h"

ControllerTable tableOf(const QString& name)
{
    ControllerTable table;
    const QString problem = readTable(name, {}, &table);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return table;
}

QString ScriptedController::script(const QByteArrayList& lines)
{
    ControllerTable changed = table();
    QString fault = changeTable(&changed, QString::fromLatin1(lines.join('\n')));
    setTable(changed);
    return fault;
}

void ScriptedController::restart(const ControllerTable& table, int first, int end)
{
    setTable(table);
    firstFailing = first;
    endOfFailing = end;
    takeCommands();
    failed.clear();
    reports.clear();
}

bool ScriptedController::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const QByteArray text = textOf(operation, command);
    during(text);
    const int number = commands.size();
    commands.append(text);
    if (number >= firstFailing && number < endOfFailing)
        return false;
    return answering ? answering(operation, command, answer) : SimulatedController::execute(operation, command, answer);
}
