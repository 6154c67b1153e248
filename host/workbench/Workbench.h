#pragma once

#include <QWidget>

class DevelopmentHost;

/**
 * The window beside the host's main window: the commands and their faults, the error reports, and the simulated
 * controller's state. It has no parent and stays usable while a module's dialog is open. Does not own the host.
 */
class Workbench : public QWidget
{
    Q_OBJECT

public:
    explicit Workbench(DevelopmentHost* host);
};
