#include "Replay.h"

#include "CommandTraits.h"

#include <algorithm>

static bool isPoll(const RecordedLine& line)
{
    return traitsOf(line.text).isPolled;
}

ControllerIdentity Replay::recordedController() const
{
    ControllerIdentity controller;
    readConnection(lines.first().text, &controller);
    return controller;
}

bool Replay::isAtEnd() const
{
    return std::all_of(lines.begin() + position, lines.end(), isPoll);
}

bool Replay::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const RecordedLine line = take({textOf(operation) + ' ' + command, true, "no"});
    *answer = line.answer;
    return line.isAnswered;
}

RecordedLine Replay::take(const RecordedLine& asked)
{
    for (; position < lines.size() && isPoll(lines.at(position)); ++position)
        polls.insert(lines.at(position).text, lines.at(position));
    if (!firstProblem.isEmpty())
        return {asked.text, false, {}};
    if (isPoll(asked))
        return polls.value(asked.text, asked);
    RecordedLine due = lines.value(position);
    if (due.text == asked.text) {
        ++position;
        return due;
    }
    const bool isAtEnd = position == lines.size();
    firstProblem = QString("%1: expected %2, found \"%3\"")
                       .arg(isAtEnd ? file : QString("%1:%2").arg(file).arg(due.number),
                            isAtEnd ? "the end of the recording" : '"' + QString::fromLatin1(due.text) + '"',
                            QString::fromLatin1(asked.text));
    emit differed(firstProblem);
    return {asked.text, false, {}};
}
