#pragma once

#include <QMenu>

class DevelopmentHost;

/** The menu that chooses, saves and resets the simulated controller. Does not own the host. */
class ControllerMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ControllerMenu(DevelopmentHost* host);

private:
    void addNamed();
    void open();
    void save();

    DevelopmentHost* host;
};
