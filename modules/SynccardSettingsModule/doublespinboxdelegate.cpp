#include "doublespinboxdelegate.h"

#include <QDoubleSpinBox>

namespace {

constexpr double stepMicroseconds = 100.0;

} // namespace

DoubleSpinboxDelegate::DoubleSpinboxDelegate(QObject* parent) : QItemDelegate(parent)
{}

QWidget* DoubleSpinboxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                             const QModelIndex& /*index*/) const
{
    return new QDoubleSpinBox(parent);
}

void DoubleSpinboxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* spinBox = qobject_cast<QDoubleSpinBox*>(editor);
    if (!spinBox)
        return;
    const double delay = index.data().toString().toDouble();
    const double maximum = index.sibling(index.row(), MaximumDelayColumn).data().toString().toDouble();
    spinBox->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    spinBox->setMinimum(0.0);
    spinBox->setMaximum(maximum);
    spinBox->setDecimals(0);
    spinBox->setSingleStep(stepMicroseconds);
    spinBox->setValue(delay);
}

void DoubleSpinboxDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* spinBox = qobject_cast<QDoubleSpinBox*>(editor))
        model->setData(index, QString::number(spinBox->value(), 'f', 0), Qt::EditRole);
}
