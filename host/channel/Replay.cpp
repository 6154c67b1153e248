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

/** The position of the next line that is no poll. */
int Replay::nextCommand() const
{
    return static_cast<int>(std::find_if_not(lines.begin() + position, lines.end(), isPoll) - lines.begin());
}

bool Replay::isAtEnd() const
{
    return nextCommand() == lines.size();
}

QString Replay::progress() const
{
    const QString next = isAtEnd() ? "the end" : QString::fromLatin1(lines.at(nextCommand()).text);
    return QString("%1 of %2, %3")
        .arg(nextCommand())
        .arg(lines.size())
        .arg(firstProblem.isEmpty() ? "next: " + next : "then a command differed");
}

void Replay::rewind()
{
    position = 0;
    polls.clear();
    firstProblem.clear();
    emit moved();
}

void Replay::connected(const ControllerIdentity& controller)
{
    take({connectionText(controller), true, {}});
    emit moved();
}

bool Replay::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const RecordedLine line = take({textOf(operation, command), true, "no"});
    *answer = line.answer;
    emit moved();
    return line.isAnswered;
}

RecordedLine Replay::take(const RecordedLine& asked)
{
    for (const int due = nextCommand(); position < due; ++position)
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
