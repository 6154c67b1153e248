#pragma once

#include "ControllerModel.h"

#include <QTreeView>

class DevelopmentHost;

/** Shows and edits the state of the host's simulated controller. Does not own the host. */
class ControllerPane : public QTreeView
{
    Q_OBJECT

public:
    explicit ControllerPane(DevelopmentHost* host);

signals:
    /** A value was edited; \a text says why it was refused, and is empty if it was taken. */
    void said(const QString& text);

private:
    ControllerModel model;
};
