#include "CommandModel.h"

#include <QFont>
#include <QTime>

CommandModel::CommandModel()
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &CommandModel::showPending);
}

QVariant CommandModel::data(const QModelIndex& index, int role) const
{
    const Row& row = rows.at(index.row());
    if (role == Qt::FontRole && row.hasFailed) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role == KindRole)
        return row.isPoll ? "poll" : "command";
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? row.texts.at(index.column()) : QVariant();
}

QVariant CommandModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? columns.value(section) : QVariant();
}

void CommandModel::append(const CommandRecord& record)
{
    append(textOf(record.operation), QString::fromLatin1(record.command), record, traitsOf(record.text()).isPolled);
}

void CommandModel::appendProblem(const QString& problem)
{
    append("replay", problem, {{}, {}, {}, -1}, false);
}

void CommandModel::append(const QString& operation, const QString& command, const CommandRecord& record, bool isPoll)
{
    const bool hasFailed = record.result != 0;
    const double milliseconds = static_cast<double>(record.microseconds) / 1000.0;
    pending.append(
        {{QTime::currentTime().toString("HH:mm:ss.zzz"), operation, command, QString::fromLatin1(record.answer),
          hasFailed ? tr("failed (%1)").arg(record.result) : tr("ok"), tr("%1 ms").arg(milliseconds, 0, 'f', 3)},
         hasFailed,
         isPoll});
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
