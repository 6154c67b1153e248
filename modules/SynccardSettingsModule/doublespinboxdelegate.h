#pragma once

#include <QItemDelegate>

/** The columns of the channel table, from left to right. MaximumDelayColumn is hidden. */
enum ChannelTableColumn { ChannelColumn, DelayColumn, IdleColumn, MaximumDelayColumn, ChannelColumnCount };

/**
 * Edits a channel's delay in its cell: whole microseconds in steps of 100, from 0 to the number in the same row's
 * MaximumDelayColumn. The view owns and deletes the editors.
 */
class DoubleSpinboxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit DoubleSpinboxDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

    /** Writes the editor's value into \a model, as text without decimals. */
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
