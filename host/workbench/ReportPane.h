#pragma once

#include "LogTable.h"

#include <QStandardItemModel>

/** The error reports that modules send over the channel: equal ones share a row and are counted. */
class ReportPane : public LogTable
{
    Q_OBJECT

public:
    enum Column { CategoryColumn, TagColumn, FlagColumn, MessageColumn, CountColumn, TimeColumn };

    explicit ReportPane(DevelopmentHost* host);

signals:
    /** There are \a number reports now, repeated ones included. */
    void counted(int number);

private:
    void add(const QString& category, const QString& systemTag, int flag, const QString& message);
    void clear();

    QStandardItemModel reports;
    QList<QStringList> known; // category, tag, flag and message of each row
    int number = 0;
};
