#pragma once

#include <QStandardItemModel>

/** The modules' error reports: category, tag, flag, message, count and last time; equal ones share a row. */
class ReportModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { CategoryColumn, TagColumn, FlagColumn, MessageColumn, CountColumn, TimeColumn };

    ReportModel();

public slots:
    void add(const QString& category, const QString& systemTag, int flag, const QString& message);
};
