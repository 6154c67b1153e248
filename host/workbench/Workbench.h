#pragma once

#include <QWidget>

class DevelopmentHost;

/**
 * The window next to the host's main window: the log with the faults, and the simulated controller's table. It has no
 * parent and stays usable while a module's dialog is open. Does not own the host.
 */
class Workbench : public QWidget
{
    Q_OBJECT

public:
    explicit Workbench(DevelopmentHost* host);

    void bringToFront();
};
