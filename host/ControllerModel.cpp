#include "ControllerModel.h"

#include "ControllerFile.h"
#include "SimulatedController.h"

#include <QFont>
#include <QJsonArray>
#include <QJsonObject>

namespace {

constexpr int nameRole = Qt::UserRole;

/** \a whole with \a value at \a path, the names and positions from the root on. */
QJsonValue replaced(const QJsonValue& whole, const QStringList& path, const QJsonValue& value)
{
    if (path.isEmpty())
        return value;
    const QStringList rest = path.mid(1);
    if (whole.isArray()) {
        QJsonArray array = whole.toArray();
        const int position = path.first().toInt() - 1;
        array.replace(position, replaced(array.at(position), rest, value));
        return array;
    }
    QJsonObject object = whole.toObject();
    object.insert(path.first(), replaced(object.value(path.first()), rest, value));
    return object;
}

QJsonValue valueAt(QJsonValue value, const QStringList& path)
{
    for (const QString& name : path)
        value = value.isArray() ? value.toArray().at(name.toInt() - 1) : value.toObject().value(name);
    return value;
}

QStandardItem* newItem(bool isEditable)
{
    auto* item = new QStandardItem;
    item->setEditable(isEditable);
    return item;
}

} // namespace

ControllerModel::ControllerModel(SimulatedController* controller, Apply apply)
    : controller(controller), apply(std::move(apply))
{
    setHorizontalHeaderLabels({tr("Name"), tr("Value")});
    marked = controller->state().toJson();
    refresh();
    // A burst of commands is shown once, and no opening of the dialog waits for the tree.
    timer.setSingleShot(true);
    connect(controller, &SimulatedController::changed, &timer, QOverload<>::of(&QTimer::start));
    connect(&timer, &QTimer::timeout, this, &ControllerModel::refresh);
    connect(this, &QStandardItemModel::itemChanged, this, &ControllerModel::take);
}

void ControllerModel::markFromNow()
{
    marked = controller->state().toJson();
    timer.start();
}

void ControllerModel::refresh()
{
    isRefreshing = true;
    show(invisibleRootItem(), controller->state().toJson(), marked);
    isRefreshing = false;
}

void ControllerModel::show(QStandardItem* parent, const QJsonValue& value, const QJsonValue& before)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        parent->setRowCount(array.size());
        for (int i = 0; i < array.size(); ++i)
            showEntry(parent, i, QString::number(i + 1), array.at(i), before.toArray().at(i));
        return;
    }
    const QJsonObject object = value.toObject();
    const QStringList names = object.keys();
    parent->setRowCount(names.size());
    for (int i = 0; i < names.size(); ++i)
        showEntry(parent, i, names.at(i), object.value(names.at(i)), before.toObject().value(names.at(i)));
}

void ControllerModel::showEntry(QStandardItem* parent, int row, const QString& name, const QJsonValue& value,
                                const QJsonValue& before)
{
    const bool isLeaf = !value.isArray() && !value.isObject();
    if (!parent->child(row, 0)) {
        parent->setChild(row, 0, newItem(false));
        parent->setChild(row, 1, newItem(isLeaf));
    }
    QStandardItem* nameItem = parent->child(row, 0);
    nameItem->setData(name, nameRole);
    const bool isChanged = value != before;
    nameItem->setText(isChanged ? name + " *" : name);
    QFont font = nameItem->font();
    font.setBold(isChanged);
    nameItem->setFont(font);
    if (isLeaf)
        parent->child(row, 1)->setData(value.isBool() ? value.toVariant() : value.toVariant().toString(), Qt::EditRole);
    else
        show(nameItem, value, before);
}

/** Takes over an edited value, or puts the old one back. */
void ControllerModel::take(const QStandardItem* item)
{
    if (isRefreshing || item->column() != 1)
        return;
    QStringList path;
    for (QModelIndex index = item->index(); index.isValid(); index = index.parent())
        path.prepend(nameOf(index));
    const QJsonValue whole = controller->state().toJson();
    const QVariant entered = item->data(Qt::EditRole);
    bool isNumber = false;
    const double number = entered.toString().toDouble(&isNumber);
    const QJsonValue value =
        isNumber && valueAt(whole, path).isDouble() ? QJsonValue(number) : QJsonValue::fromVariant(entered);
    ControllerState state = controller->state();
    QString reason;
    readControllerState(replaced(whole, path, value).toObject(), &state, &reason);
    if (reason.isEmpty())
        reason = apply(state);
    emit edited(reason);
    refresh();
}
