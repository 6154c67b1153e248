#pragma once

#include "StateTree.h"

#include <QStandardItemModel>
#include <QTimer>

class DevelopmentHost;

/**
 * The state of the host's simulated controller as an editable tree: name, value and unit of each field, in the
 * description's order. It follows the controller; values that differ from those at the last markFromNow() are bold and
 * have a star. GUI thread only; does not own the host.
 */
class ControllerModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, UnitColumn };
    /** Of a value: its place in the state, the texts to choose from, and whether it takes no others. */
    enum Role { PlaceRole = Qt::UserRole, ChoicesRole, IsChoiceRole };

    explicit ControllerModel(DevelopmentHost* host);

    /** Puts the edited \a value of a field in force, unless it is refused. */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

public slots:
    /** Marks only what changes from now on. */
    void markFromNow();

signals:
    /** A value was edited; \a problem says why it was refused, and is empty if it was taken. */
    void edited(const QString& problem);

private:
    void refresh();
    void show(QStandardItem* parent, const StateNode& node, const StateNode& before);

    DevelopmentHost* host;
    ControllerState marked;
    QTimer timer;
};
