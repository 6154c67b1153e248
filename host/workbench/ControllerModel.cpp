#include "ControllerModel.h"

#include "ControllerText.h"
#include "DevelopmentHost.h"

#include <QFont>

#include <algorithm>

/** The rows above the answers. */
enum HeaderRow { ProtocolRow, ModelRow, HeaderRowCount };

ControllerModel::ControllerModel(DevelopmentHost* host) : host(host), shown(host->controller().table()), marked(shown)
{
    // A burst of commands is shown once, and no opening of the dialog waits for the table.
    timer.setSingleShot(true);
    connect(&host->controller(), &SimulatedController::changed, &timer, QOverload<>::of(&QTimer::start));
    connect(&timer, &QTimer::timeout, this, &ControllerModel::refresh);
}

int ControllerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : HeaderRowCount + shown.rows().size();
}

QVariant ControllerModel::data(const QModelIndex& index, int role) const
{
    const QStringList cells = lineAt(index.row()).split(" = ");
    if (role == Qt::FontRole) {
        QFont font;
        font.setBold(isChanged(index.row()));
        return font;
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole)
        return {};
    if (index.column() == CommandColumn)
        return cells.first() + (isChanged(index.row()) ? " *" : "");
    return cells.mid(1).join(" = ");
}

QVariant ControllerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle ? (section == CommandColumn ? "Command" : "Answer") : QVariant();
}

Qt::ItemFlags ControllerModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
    return index.column() == AnswerColumn ? plain | Qt::ItemIsEditable : plain;
}

bool ControllerModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role == Qt::EditRole && value != data(index, role))
        change(lineAt(index.row()).section(" = ", 0, 0) + " = " + value.toString());
    return true;
}

QString ControllerModel::lineAt(int row) const
{
    if (row == ProtocolRow)
        return "protocol = " + shown.identity.protocol.toString();
    if (row == ModelRow)
        return "model = " + written(shown.identity.model.toLatin1());
    const AnswerRow& answer = shown.rows().at(row - HeaderRowCount);
    return writtenCommand(answer) + " = " + writtenAnswer(answer);
}

void ControllerModel::change(const QString& lines)
{
    ControllerTable table = host->controller().table();
    QString problem = changeTable(&table, lines);
    if (problem.isEmpty())
        problem = host->changeController(table);
    refresh();
    emit edited(problem);
}

void ControllerModel::remove(const QVector<int>& rows)
{
    ControllerTable table = host->controller().table();
    bool hasHeader = false;
    for (const int row : rows) {
        hasHeader = hasHeader || row < HeaderRowCount;
        if (row >= HeaderRowCount)
            table.remove(shown.rows().at(row - HeaderRowCount).command);
    }
    if (!hasHeader)
        host->changeController(table);
    refresh();
    emit edited(hasHeader ? "Protocol and model cannot be removed" : QString());
}

void ControllerModel::markFromNow()
{
    marked = host->controller().table();
    refresh();
}

/** Keeps selection and scroll position unless there are other rows. */
void ControllerModel::refresh()
{
    const ControllerTable& table = host->controller().table();
    const auto isSame = [](const AnswerRow& a, const AnswerRow& b) { return a.command == b.command; };
    const bool hasSameRows =
        std::equal(shown.rows().begin(), shown.rows().end(), table.rows().begin(), table.rows().end(), isSame);
    if (!hasSameRows)
        beginResetModel();
    shown = table;
    if (!hasSameRows)
        endResetModel();
    else
        emit dataChanged(index(0, CommandColumn), index(rowCount() - 1, AnswerColumn));
}

bool ControllerModel::isChanged(int row) const
{
    if (row == ProtocolRow)
        return shown.identity.protocol != marked.identity.protocol;
    if (row == ModelRow)
        return shown.identity.model != marked.identity.model;
    const AnswerRow& answer = shown.rows().at(row - HeaderRowCount);
    const AnswerRow* const before = marked.find(answer.command);
    return !before || before->answer != answer.answer || before->isFailure != answer.isFailure;
}
