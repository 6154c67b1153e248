#include "Replay.h"

namespace {

bool isPoll(const QByteArray& operation, const QByteArray& command)
{
    return operation == "get" && (command == "synccard has_input_frequency" || command == "synccard input_frequency");
}

} // namespace

bool Replay::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    if (!firstProblem.isEmpty())
        return false;
    if (isPoll(operation, command))
        return poll(command, answer);
    const RecordedCommand* expected = due();
    if (!expected)
        return differ(file, "the end of the recording", operation + ' ' + command);
    const QByteArray expectedText = expected->record.operation + ' ' + expected->record.command;
    if (expectedText != operation + ' ' + command)
        return differ(QString("%1:%2").arg(file).arg(expected->line), '"' + expectedText + '"',
                      operation + ' ' + command);
    ++position;
    *answer = expected->record.answer;
    return expected->record.result == 0;
}

ControllerState Replay::recordedController(ControllerState state) const
{
    const QString connection = QString::fromLatin1(commands.first().record.command);
    bool isVersion = false;
    state.protocol.fromString(connection.section(' ', 0, 0), &isVersion);
    state.model = connection.section(' ', 1);
    return state;
}

const RecordedCommand* Replay::due()
{
    for (; position < commands.size(); ++position) {
        const CommandRecord& record = commands.at(position).record;
        if (!isPoll(record.operation, record.command))
            return &commands.at(position);
        polls.insert(record.command, record);
    }
    return nullptr;
}

bool Replay::poll(const QByteArray& command, QByteArray* answer)
{
    due();
    const CommandRecord record = polls.value(command, {"get", command, "no", 0});
    *answer = record.answer;
    return record.result == 0;
}

bool Replay::differ(const QString& place, const QByteArray& expected, const QByteArray& found)
{
    firstProblem =
        QString("%1: expected %2, found \"%3\"").arg(place, QString::fromLatin1(expected), QString::fromLatin1(found));
    emit differed(firstProblem);
    return false;
}
