#include "ControllerPane.h"

#include "ChoiceDelegate.h"
#include "CommandTraits.h"
#include "DevelopmentHost.h"

static constexpr int initialColumnWidth = 240; // pixels

ControllerPane::ControllerPane(DevelopmentHost* host)
    : model(&host->controller(), [host](const ControllerState& state) { return host->changeState(state); })
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
