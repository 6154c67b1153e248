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
    connect(this, &QTreeView::activated, this, &ControllerPane::editValue);
    connect(&model, &ControllerModel::edited, this, &ControllerPane::said);
    connect(&host->channel(), &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        if (traitsOf(record.text()).beginsOpening)
            model.markFromNow();
    });
}

/** Edits the value of the row in which somebody double-clicked or pressed Return. */
void ControllerPane::editValue(const QModelIndex& index)
{
    const QModelIndex value = index.siblingAtColumn(ControllerModel::ValueColumn);
    if (value.flags() & Qt::ItemIsEditable)
        edit(value);
}
