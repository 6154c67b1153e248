#pragma once

#include "CommandRecord.h"

#include <QAbstractTableModel>
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
    /** Of any cell: "poll" in the row of a poll, else "command". */
    enum Role { KindRole = Qt::UserRole };

    CommandModel();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows.size(); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns.size(); }
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
        QStringList texts;
        bool hasFailed;
        bool isPoll;
    };

    void append(const QString& operation, const QString& command, const CommandRecord& record, bool isPoll);

    const QStringList columns = {tr("Time"),   tr("Operation"), tr("Command"),
                                 tr("Answer"), tr("Result"),    tr("Duration")};
    QVector<Row> rows;
    QVector<Row> pending;
    QTimer timer;
};
