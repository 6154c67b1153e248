#pragma once

#include <QItemDelegate>

/**
 * Edits a channel's delay in place: whole microseconds in steps of 100, from 0 to the maximum that stands, as text,
 * in column 3 of the same row. The view owns and deletes the editors.
 */
class DoubleSpinboxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit DoubleSpinboxDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

    /** Stores the editor's value into \a model as fixed-point text without decimals. */
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
