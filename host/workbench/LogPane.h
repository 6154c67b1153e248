#pragma once

#include <QStandardItemModel>
#include <QTimer>
#include <QWidget>

#include <functional>

class DevelopmentHost;
class FilteredTable;
class QBoxLayout;
class QLabel;
class QSortFilterProxyModel;
struct CommandRecord;

/**
 * The log: the commands, the reports of the module and the notes of the host in the order in which they came, with the
 * faults below. Does not own the host.
 */
class LogPane : public QWidget
{
    Q_OBJECT

public:
    explicit LogPane(DevelopmentHost* host);

private:
    void addCommand(const CommandRecord& record);
    void addMessage(const QString& kind, const QString& text, const QString& origin);
    void addLater(const std::function<void()>& add);
    void addRow(const QStringList& texts, bool isBold, const QVariant& milliseconds = {}, bool isPoll = false);
    void showPending();
    void setColumnWidths();
    void followEnd();
    QBoxLayout* createFooter();
    void sumUp();

    QStandardItemModel log;
    QVector<std::function<void()>> pending; // add rows from the event loop, so that the log does not slow down openings
    QTimer showing;
    QSortFilterProxyModel* unpolled; // without the polls, if they are hidden
    FilteredTable* table;
    QLabel* sum;
    QTimer summing; // sums up once, however many rows arrive together
    bool followsEnd = true;
};
