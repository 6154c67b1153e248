#include "ControllerModel.h"

#include "DevelopmentHost.h"

#include <QFont>

namespace {

void showName(QStandardItem* item, const QString& name, bool isChanged)
{
    item->setText(isChanged ? name + " *" : name);
    QFont font = item->font();
    font.setBold(isChanged);
    item->setFont(font);
}

void showValue(QStandardItem* item, const StateNode& field)
{
    item->setData(field.place, ControllerModel::PlaceRole);
    const bool isFlag = field.rule.form == FieldRule::Flag;
    item->setData(isFlag ? QStringList{"true", "false"} : field.rule.choices, ControllerModel::ChoicesRole);
    item->setData(isFlag || field.rule.form == FieldRule::Choice, ControllerModel::IsChoiceRole);
    item->setText(field.value.toVariant().toString());
}

} // namespace

ControllerModel::ControllerModel(DevelopmentHost* host) : host(host), marked(host->controller().state())
{
    setHorizontalHeaderLabels({tr("Name"), tr("Value"), tr("Unit")});
    refresh();
    // Refreshed from the event loop: a burst of commands is shown once, and no opening of the dialog waits for the
    // tree.
    timer.setSingleShot(true);
    connect(&host->controller(), &SimulatedController::changed, &timer, QOverload<>::of(&QTimer::start));
    connect(&timer, &QTimer::timeout, this, &ControllerModel::refresh);
}

void ControllerModel::markFromNow()
{
    marked = host->controller().state();
    timer.start();
}

void ControllerModel::refresh()
{
    show(invisibleRootItem(), toTree(host->controller().state()), toTree(marked));
}

/** Shows the children of \a node below \a parent; \a before is the node as it was when marked. */
void ControllerModel::show(QStandardItem* parent, const StateNode& node, const StateNode& before)
{
    if (parent->rowCount() > node.children.size())
        parent->setRowCount(node.children.size());
    for (int row = 0; row < node.children.size(); ++row) {
        const StateNode& child = node.children.at(row);
        const StateNode childBefore = before.children.value(row);
        if (row == parent->rowCount())
            parent->appendRow({new QStandardItem, new QStandardItem, new QStandardItem});
        for (int column = 0; column < columnCount(); ++column)
            parent->child(row, column)->setEditable(column == ValueColumn && child.isField());
        QStandardItem* name = parent->child(row, NameColumn);
        showName(name, child.name, child.toLines() != childBefore.toLines());
        parent->child(row, UnitColumn)->setText(child.rule.unit);
        if (child.isField())
            showValue(parent->child(row, ValueColumn), child);
        else
            show(name, child, childBefore);
    }
}

bool ControllerModel::setData(const QModelIndex& index, const QVariant& value, int /*role*/)
{
    ControllerState state = host->controller().state();
    QString reason = editField(index.data(PlaceRole).toString(), value.toString(), &state);
    if (reason.isEmpty())
        reason = host->changeState(state);
    emit edited(reason);
    refresh();
    return reason.isEmpty();
}
