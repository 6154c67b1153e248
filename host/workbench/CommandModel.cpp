#include "CommandModel.h"

#include "CommandTraits.h"

#include <QFont>

CommandModel::CommandModel()
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &CommandModel::showPending);
}

QVariant CommandModel::data(const QModelIndex& index, int role) const
{
    const Row& row = rows.at(index.row());
    const bool hasFailed = row.record.result != 0;
    if (role == Qt::FontRole && hasFailed) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case TimeColumn:
        return row.time.toString("HH:mm:ss.zzz");
    case OperationColumn:
        return row.problem.isEmpty() ? QString::fromLatin1(textOf(row.record.operation)) : "replay";
    case CommandColumn:
        return row.problem.isEmpty() ? QString::fromLatin1(row.record.command) : row.problem;
    case AnswerColumn:
        return QString::fromLatin1(row.record.answer);
    case ResultColumn:
        return hasFailed ? tr("failed (%1)").arg(row.record.result) : tr("ok");
    default:
        return tr("%1 ms").arg(static_cast<double>(row.record.microseconds) / 1000.0, 0, 'f', 3);
    }
}

QVariant CommandModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QStringList names = {tr("Time"), tr("Operation"), tr("Command"), tr("Answer"), tr("Result"), tr("Duration")};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? names.value(section) : QVariant();
}

void CommandModel::append(const CommandRecord& record)
{
    pending.append({QTime::currentTime(), record, {}, traitsOf(record.text()).isPolled});
    timer.start();
}

void CommandModel::appendProblem(const QString& problem)
{
    pending.append({QTime::currentTime(), {{}, {}, {}, -1}, problem, false});
    timer.start();
}

void CommandModel::showPending()
{
    timer.stop();
    if (pending.isEmpty())
        return;
    beginInsertRows({}, rows.size(), rows.size() + pending.size() - 1);
    rows += pending;
    pending.clear();
    endInsertRows();
}

void CommandModel::clear()
{
    beginResetModel();
    rows.clear();
    pending.clear();
    timer.stop();
    endResetModel();
}
