#include "ScriptedController.h"

#include "ControllerChannel.h"
#include "ControllerFile.h"
#include "ControllerText.h"
#include "ControllerVocabulary.h"

static ControllerTable standardTable()
{
    ControllerTable standard;
    const QString problem = readTable(DATA_DIR "/standard-controller.txt", {}, &standard);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return standard;
}

ScriptedController::ScriptedController() : SimulatedController(standardTable())
{}

QString ScriptedController::script(const QByteArray& line)
{
    ControllerTable changed = table();
    QString fault = changeTable(&changed, QString::fromLatin1(line));
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

void ScriptedController::listen(const ControllerChannel& channel)
{
    QObject::connect(&channel, &ControllerChannel::executed, &channel, [this](const CommandRecord& record) {
        if (record.result != 0)
            failed.append(commands.size() - 1);
    });
    QObject::connect(&channel, &ControllerChannel::reported, &channel,
                     [this](const QString& category, const QString& systemTag, int flag, const QString& message) {
                         const bool isConvention = category == "standard" && systemTag == "ZORVAN3" && flag == 1;
                         reports.append((isConvention ? "" : "wrong convention: ") + message.toLatin1());
                         during(message.toLatin1());
                     });
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
