#include "ScriptedController.h"

#include "ControllerChannel.h"
#include "ControllerFile.h"
#include "ControllerText.h"
#include "ControllerVocabulary.h"

#include <QTest>

#include <utility>

static ControllerTable standardTable()
{
    ControllerTable read;
    const QString problem = readTable(DATA_DIR "/standard-controller.txt", {}, &read);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    ControllerTable standard; // Lines are those of cases.
    for (const AnswerRow& row : read.rows())
        standard.insert({row.command, row.answer, row.isFailure});
    return standard;
}

ScriptedController::ScriptedController() : SimulatedController(standardTable())
{}

QString ScriptedController::script(const QByteArray& line, int number)
{
    ControllerTable changed = table();
    const QString change = QString::fromLatin1(line.startsWith("maybe ") ? line.mid(6) : line);
    QString fault = ControllerText(&changed).read(change, number);
    if (fault.isEmpty())
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
        logged.append(record.text());
    });
    QObject::connect(&channel, &ControllerChannel::reported, &channel,
                     [this](const QString& category, const QString& systemTag, int flag, const QString& message) {
                         const bool isConvention = category == "standard" && systemTag == "ZORVAN3" && flag == 1;
                         reports.append((isConvention ? "" : "wrong convention: ") + message.toLatin1());
                         during(message.toLatin1());
                     });
}

QByteArrayList ScriptedController::takeCommands()
{
    if (std::exchange(logged, {}) != commands)
        QTest::qFail("the channel's log differs from the executed commands", __FILE__, __LINE__);
    return std::exchange(commands, {});
}

bool ScriptedController::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const QByteArray text = textOf(operation, command);
    during(text);
    const int number = commands.size();
    commands.append(text);
    if (number >= firstFailing && number < endOfFailing)
        return false;
    const Request request(operation, command);
    const QByteArray ofParameter = request.isSet ? "set " + request.name : request.name;
    for (const QByteArray& row : {text, command, ofParameter}) {
        if (table().find(row))
            askedLines.insert(table().find(row)->line);
    }
    return SimulatedController::execute(operation, command, answer);
}
