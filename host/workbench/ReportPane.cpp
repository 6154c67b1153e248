#include "ReportPane.h"

#include "DevelopmentHost.h"

#include <QAction>
#include <QHeaderView>
#include <QTime>

ReportPane::ReportPane(DevelopmentHost* host) : LogTable(host, "reports", tr("Error reports"))
{
    reports.setHorizontalHeaderLabels(
        {tr("Category"), tr("Tag"), tr("Flag"), tr("Message"), tr("Count"), tr("Last time")});
    setModel(&reports);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(MessageColumn, QHeaderView::Stretch);
    connect(&host->channel(), &ControllerChannel::reported, this, &ReportPane::add);
    auto* clearAction = new QAction(tr("Clea&r"), this);
    connect(clearAction, &QAction::triggered, this, &ReportPane::clear);
    addAction(clearAction);
}

void ReportPane::add(const QString& category, const QString& systemTag, int flag, const QString& message)
{
    const QStringList texts = {category, systemTag, QString::number(flag), message};
    int row = known.indexOf(texts);
    if (row < 0) {
        row = known.size();
        known.append(texts);
        for (int column = 0; column < reports.columnCount(); ++column)
            reports.setItem(row, column, new QStandardItem(texts.value(column)));
    }
    reports.item(row, CountColumn)->setText(QString::number(reports.item(row, CountColumn)->text().toInt() + 1));
    reports.item(row, TimeColumn)->setText(QTime::currentTime().toString("HH:mm:ss"));
    emit counted(++number);
}

void ReportPane::clear()
{
    reports.removeRows(0, reports.rowCount());
    known.clear();
    number = 0;
    emit counted(number);
}
