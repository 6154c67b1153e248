#include "ControllerPane.h"

#include "DevelopmentHost.h"

#include <QComboBox>
#include <QStyledItemDelegate>

static constexpr int initialColumnWidth = 240; // pixels

namespace {

/** Edits the controller's values. It offers those that ControllerModel names, and takes others where the model does. */
class ChoiceDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
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
};

} // namespace

ControllerPane::ControllerPane(DevelopmentHost* host) : model(host)
{
    setModel(&model);
    setAccessibleName(tr("Simulated controller"));
    setItemDelegateForColumn(ControllerModel::ValueColumn, new ChoiceDelegate(this));
    setColumnWidth(ControllerModel::NameColumn, initialColumnWidth);
    setColumnWidth(ControllerModel::ValueColumn, initialColumnWidth);
    setEditTriggers(NoEditTriggers);
    // A double click or Return anywhere in a row edits its value.
    connect(this, &QTreeView::activated, this, [this](const QModelIndex& index) {
        const QModelIndex value = index.siblingAtColumn(ControllerModel::ValueColumn);
        if (value.flags() & Qt::ItemIsEditable)
            edit(value);
    });
    connect(&model, &ControllerModel::edited, this, &ControllerPane::said);
    connect(&host->channel(), &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        if (traitsOf(record.text()).beginsOpening)
            model.markFromNow();
    });
}
