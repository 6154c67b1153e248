#include "ReportModel.h"

#include <QTime>

ReportModel::ReportModel()
{
    setHorizontalHeaderLabels({tr("Category"), tr("Tag"), tr("Flag"), tr("Message"), tr("Count"), tr("Last time")});
}

void ReportModel::add(const QString& category, const QString& systemTag, int flag, const QString& message)
{
    const QStringList texts = {category, systemTag, QString::number(flag), message};
    const auto textsOf = [this](int row) {
        return QStringList{item(row, CategoryColumn)->text(), item(row, TagColumn)->text(),
                           item(row, FlagColumn)->text(), item(row, MessageColumn)->text()};
    };
    int row = 0;
    while (row < rowCount() && textsOf(row) != texts)
        ++row;
    if (row == rowCount()) {
        QList<QStandardItem*> items;
        for (const QString& text : texts)
            items.append(new QStandardItem(text));
        items.append(new QStandardItem("0"));
        items.append(new QStandardItem);
        appendRow(items);
    }
    item(row, CountColumn)->setText(QString::number(item(row, CountColumn)->text().toInt() + 1));
    item(row, TimeColumn)->setText(QTime::currentTime().toString("HH:mm:ss"));
}
