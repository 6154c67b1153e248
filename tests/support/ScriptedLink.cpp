#include "ScriptedLink.h"

#include "ControllerChannel.h"
#include "Files.h"

ScriptedLink::ScriptedLink()
{
    const QByteArrayList changes = readFile(DATA_DIR "/standard-controller.txt").split('\n');
    for (const QByteArray& change : changes)
        script(change);
}

void ScriptedLink::script(QByteArray change, int line)
{
    change.replace("maybe ", "");
    const int separator = change.indexOf('=');
    if (separator > 0)
        answers.insert(change.left(separator), {change.mid(separator + 1), line});
}

void ScriptedLink::script(const SessionLines& changes)
{
    for (const SessionLine& line : changes)
        script(line.text, line.number);
}

void ScriptedLink::restart(const Answers& newAnswers, int first, int end)
{
    answers = newAnswers;
    firstFailing = first;
    endOfFailing = end;
    commands.clear();
    failed.clear();
    reports.clear();
}

void ScriptedLink::listen(const ControllerChannel& channel)
{
    QObject::connect(&channel, &ControllerChannel::executed, &channel, [this](const CommandRecord& record) {
        if (record.result != 0)
            failed.append(commands.size());
        commands.append(record.text());
    });
    QObject::connect(&channel, &ControllerChannel::reported, &channel,
                     [this](const QString& category, const QString& systemTag, int flag, const QString& message) {
                         const bool isConvention = category == "standard" && systemTag == "ZORVAN3" && flag == 1;
                         reports.append((isConvention ? "" : "wrong convention: ") + message.toLatin1());
                         during(message.toLatin1());
                     });
}

bool ScriptedLink::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    during(textOf(operation) + ' ' + command);
    if (commands.size() >= firstFailing && commands.size() < endOfFailing)
        return false;
    const bool isSet = operation == Operation::Set;
    const Answer otherwise = answers.value(command, {isSet ? "" : "!", 0});
    const Answer found = answers.value(textOf(operation) + ' ' + command, otherwise);
    askedLines.insert(found.line);
    *answer = found.text;
    if (isSet && *answer != "!") {
        const int separator = command.lastIndexOf(' ');
        const auto name = answers.find(command.left(separator));
        if (name != answers.end())
            name->text = command.mid(separator + 1);
    }
    return *answer != "!";
}
