#pragma once

#include <QMenu>

class DevelopmentHost;

/** The menu that begins and ends a recording, and rewinds the one that answers. Does not own the host. */
class RecordingMenu : public QMenu
{
    Q_OBJECT

public:
    explicit RecordingMenu(DevelopmentHost* host);

private:
    void record();

    DevelopmentHost* host;
};
