#pragma once

#include "CommandModel.h"

#include <QSortFilterProxyModel>
#include <QWidget>

class DevelopmentHost;
class QBoxLayout;

/** The log of all commands: a filter, buttons that copy, save and clear it, and below it the faults. */
class CommandPane : public QWidget
{
    Q_OBJECT

public:
    explicit CommandPane(DevelopmentHost* host);

signals:
    /** Something failed or is in order again; \a text says why, or is empty. */
    void said(const QString& text);

private:
    QWidget* createTable();
    QBoxLayout* createButtons();
    void save();
    /** The rows shown, a line each with tabs between the columns. */
    QString text() const;

    CommandModel commands;
    QSortFilterProxyModel shown;
};
