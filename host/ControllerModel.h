#pragma once

#include <QJsonValue>
#include <QStandardItemModel>
#include <QTimer>

#include <functional>

struct ControllerState;
class SimulatedController;

/**
 * The simulated controller's state as an editable tree of names and values. It follows the controller; values that
 * differ from those at the last markFromNow() are bold and have a star. GUI thread only; does not own the controller.
 */
class ControllerModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /** Puts an edited state in force; returns why not, or an empty text. */
    using Apply = std::function<QString(const ControllerState&)>;

    ControllerModel(SimulatedController* controller, Apply apply);

    /** The name of the value at \a index, such as "protocol". */
    static QString nameOf(const QModelIndex& index) { return index.siblingAtColumn(0).data(Qt::UserRole).toString(); }

public slots:
    /** Marks only what changes from now on. */
    void markFromNow();

signals:
    /** A value was edited; \a problem says why it was not taken, and is empty if it was. */
    void edited(const QString& problem);

private:
    void refresh();
    void show(QStandardItem* parent, const QJsonValue& value, const QJsonValue& before);
    void showEntry(QStandardItem* parent, int row, const QString& name, const QJsonValue& value,
                   const QJsonValue& before);
    void take(const QStandardItem* item);

    SimulatedController* controller;
    Apply apply;
    QJsonValue marked;
    QTimer timer;
    bool isRefreshing = false;
};
