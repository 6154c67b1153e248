#pragma once

#include "CommandModel.h"

#include <QElapsedTimer>
#include <QSortFilterProxyModel>
#include <QWidget>

class DevelopmentHost;
class LogTable;
class QBoxLayout;

/** The log of all commands: a filter, buttons that copy, save and clear it, and below it the faults. */
class CommandPane : public QWidget
{
    Q_OBJECT

public:
    explicit CommandPane(DevelopmentHost* host);

    /** Writes the rows shown into \a file, and says so. A file that cannot be written stays as it was. */
    void save(const QString& file);

signals:
    /** \a text says what failed and why, or what has been done; empty: what was said is over. */
    void said(const QString& text);

private:
    LogTable* createTable(DevelopmentHost* host);
    QBoxLayout* createFilter();
    QBoxLayout* createButtons();

    CommandModel commands;
    QSortFilterProxyModel unpolled; // without the polls, if they are hidden
    QSortFilterProxyModel shown;    // of these, the rows in which the filter's text is found
    LogTable* table;
    QElapsedTimer sinceShown;
};
