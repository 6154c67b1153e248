#include "Replay.h"

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

/** Returns the position of the next line that is not a poll. */
int Replay::nextCommand() const
{
    return static_cast<int>(std::find_if_not(lines.begin() + position, lines.end(), isPoll) - lines.begin());
}

bool Replay::isAtEnd() const
{
    return nextCommand() == lines.size();
}

void Replay::connected(const ControllerIdentity& controller)
{
    take({connectionText(controller), true, {}});
}

bool Replay::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const RecordedLine line = take({textOf(operation, command), true, "no"});
    *answer = line.answer;
    return line.isAnswered;
}

RecordedLine Replay::take(const RecordedLine& asked)
{
    for (const int due = nextCommand(); position < due; ++position)
        polls.insert(lines.at(position).text, lines.at(position));
    if (hasDiffered)
        return {asked.text, false, {}};
    if (isPoll(asked))
        return polls.value(asked.text, asked);
    RecordedLine due = lines.value(position);
    if (due.text == asked.text) {
        ++position;
        return due;
    }
    const bool isAtEnd = position == lines.size();
    hasDiffered = true;
    emit differed(QString("%1: expected %2, found \"%3\"")
                      .arg(isAtEnd ? file : QString("%1:%2").arg(file).arg(due.number),
                           isAtEnd ? "the end of the recording" : '"' + QString::fromLatin1(due.text) + '"',
                           QString::fromLatin1(asked.text)));
    return {asked.text, false, {}};
}
