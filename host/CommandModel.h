#pragma once

#include "CommandRecord.h"

#include <QAbstractTableModel>
#include <QTime>
#include <QTimer>
#include <QVector>

/**
 * The log of all commands, oldest first: time, operation, command, answer, result and duration. Rows appear when the
 * event loop turns: a burst of commands costs them next to nothing, however long the log.
 */
class CommandModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, OperationColumn, CommandColumn, AnswerColumn, ResultColumn, DurationColumn, ColumnCount };

    CommandModel();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows.size(); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : ColumnCount; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

public slots:
    void append(const CommandRecord& record);
    void clear();

private:
    struct Row
    {
        QTime time;
        CommandRecord record;
    };
    void showPending();

    QVector<Row> rows;
    QVector<Row> pending;
    QTimer timer;
};
