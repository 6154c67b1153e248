#include "ChoiceDelegate.h"

#include "ControllerModel.h"

#include <QComboBox>

QWidget* ChoiceDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    const QStringList choices = index.data(ControllerModel::ChoicesRole).toStringList();
    if (choices.isEmpty())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* box = new QComboBox(parent);
    box->addItems(choices);
    if (!index.data(ControllerModel::IsChoiceRole).toBool()) {
        box->setEditable(true);
        box->setCompleter(nullptr); // it would complete a typed text to one of the choices
    }
    return box;
}
