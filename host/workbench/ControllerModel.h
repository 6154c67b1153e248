#pragma once

#include "ControllerTable.h"

#include <QAbstractTableModel>
#include <QTimer>

class DevelopmentHost;

/**
 * The table of the host's simulated controller: command and answer as a controller file writes them, below protocol and
 * model. It follows the controller. Rows that differ from the last markFromNow() are bold and have a star. GUI thread
 * only; does not own the host.
 */
class ControllerModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { CommandColumn, AnswerColumn };

    explicit ControllerModel(DevelopmentHost* host);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /** Changes the answer of one row. */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /** Returns a row as a line of a controller file. */
    QString lineAt(int row) const;

    /** Changes the controller by \a lines of a controller file. Either all lines are accepted or none. */
    void change(const QString& lines);
    /** Removes rows from the controller, but not protocol and model. */
    void remove(const QVector<int>& rows);
    /** Marks only what changes from now on. */
    void markFromNow();

signals:
    /** The user tried a change. \a problem is an error message, or empty if the change was accepted. */
    void edited(const QString& problem);

private:
    void refresh();
    bool isChanged(int row) const;

    DevelopmentHost* host;
    ControllerTable shown;
    ControllerTable marked;
    QTimer timer;
};
