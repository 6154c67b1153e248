#include "ControllerTable.h"

const AnswerRow* ControllerTable::find(const QByteArray& command) const
{
    const auto position = positions.constFind(command);
    return position == positions.constEnd() ? nullptr : &list.at(*position);
}

void ControllerTable::insert(const AnswerRow& row)
{
    const auto position = positions.constFind(row.command);
    if (position != positions.constEnd()) {
        list[*position] = row;
        return;
    }
    positions.insert(row.command, list.size());
    list.append(row);
}

void ControllerTable::remove(const QByteArray& command)
{
    const AnswerRow* row = find(command);
    if (!row)
        return;
    list.removeAt(positions.take(command));
    for (int i = 0; i < list.size(); ++i)
        positions[list.at(i).command] = i;
}
