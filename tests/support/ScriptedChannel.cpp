#include "ScriptedChannel.h"

#include <QFile>

ScriptedChannel::ScriptedChannel()
{
    QFile file(DATA_DIR "/standard-controller.txt");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    script(file.readAll().replace('\n', ';'));
}

void ScriptedChannel::script(const QByteArray& changes)
{
    const QByteArrayList all = changes.split(';');
    for (const QByteArray& change : all) {
        const int separator = change.indexOf('=');
        if (separator > 0)
            answers.insert(change.left(separator), change.mid(separator + 1));
    }
}

bool ScriptedChannel::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    if (commands.size() >= firstFailing && commands.size() < endOfFailing)
        return false;
    const bool isSet = operation == "set";
    *answer = answers.value(operation + ' ' + command, answers.value(command, isSet ? "" : "!"));
    if (isSet && *answer != "!") {
        const int separator = command.lastIndexOf(' ');
        const auto name = answers.find(command.left(separator));
        if (name != answers.end())
            *name = command.mid(separator + 1);
    }
    return *answer != "!";
}

void ScriptedChannel::finished(const CommandRecord& record)
{
    if (record.result != 0)
        failed.append(commands.size());
    commands.append(record.operation + ' ' + record.command);
}

void ScriptedChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    const bool isConvention = qstrcmp(category, "standard") == 0 && qstrcmp(systemTag, "ZORVAN3") == 0 && flag == 1;
    reports.append(isConvention ? QByteArray(message) : "wrong convention: " + QByteArray(message));
}
