#pragma once

#include "CommandRecord.h"

#include <QAbstractTableModel>
#include <QTime>
#include <QTimer>
#include <QVector>

/**
 * The log of all commands, oldest first: time, operation, command, answer, result and duration. New rows wait for the
 * event loop and appear together, so that a long log slows no command down.
 */
class CommandModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, OperationColumn, CommandColumn, AnswerColumn, ResultColumn, DurationColumn, ColumnCount };

    CommandModel();

    bool isPoll(int row) const { return rows.at(row).isPoll; }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows.size(); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : ColumnCount; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

public slots:
    void append(const CommandRecord& record);
    /** Adds a row that says how a replay differed. */
    void appendProblem(const QString& problem);
    /** Shows the new rows at once. */
    void showPending();
    void clear();

private:
    struct Row
    {
        QTime time;
        CommandRecord record;
        QString problem; // of a replay, in place of the command
        bool isPoll;
    };

    QVector<Row> rows;
    QVector<Row> pending;
    QTimer timer;
};
