#include "ControllerTable.h"

#include <utility>

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

void ControllerTable::remove(const QSet<QByteArray>& commands)
{
    const QVector<AnswerRow> all = std::exchange(list, {});
    positions.clear();
    for (const AnswerRow& row : all) {
        if (!commands.contains(row.command))
            insert(row);
    }
}
