#pragma once

#include "LogTable.h"

#include <QStandardItemModel>

class ControllerChannel;

/** The error reports that modules send over the channel: equal ones share a row and are counted. */
class ReportPane : public LogTable
{
    Q_OBJECT

public:
    enum Column { CategoryColumn, TagColumn, FlagColumn, MessageColumn, CountColumn, TimeColumn };

    explicit ReportPane(const ControllerChannel& channel);

private:
    void add(const QString& category, const QString& systemTag, int flag, const QString& message);

    QStandardItemModel reports;
    QList<QStringList> known; // category, tag, flag and message of each row
};
