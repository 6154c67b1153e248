#pragma once

#include <QStyledItemDelegate>

/** Edits the controller's values. It offers those that ControllerModel names, and takes others where the model does. */
class ChoiceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
