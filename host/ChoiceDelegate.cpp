#include "ChoiceDelegate.h"

#include "ControllerModel.h"

#include <QComboBox>
#include <QMap>

namespace {

/** The protocol versions at which what a dialog asks changes, and one of each kind of input. */
const QMap<QString, QStringList>& choices()
{
    static const QMap<QString, QStringList> all = {
        {"protocol",
         {"0.7.9", "0.8.0", "0.12.7", "0.13.0", "1.1.0", "1.2.0", "1.5.0", "1.9.0", "1.10.0", "1.11.0", "1.15.0",
          "1.22.0", "1.23.0"}},
        {"input", {"", "video 59.940", "ttl 120.000", "ttl - \"signal too slow\""}},
        {"source", {"internal", "video", "ttl", "ttlinv", "ttlboth"}},
        {"output", {"none", "video", "ttl", "ttlinv"}},
    };
    return all;
}

} // namespace

QWidget* ChoiceDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    const QStringList offered = choices().value(ControllerModel::nameOf(index));
    if (offered.isEmpty())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* box = new QComboBox(parent);
    box->setEditable(true);
    box->setCompleter(nullptr); // it would complete what is typed to an entry of the list
    box->addItems(offered);
    return box;
}

void ChoiceDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor); box && box->isEditable())
        box->setCurrentText(index.data(Qt::EditRole).toString());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void ChoiceDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor); box && box->isEditable())
        model->setData(index, box->currentText(), Qt::EditRole);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}
