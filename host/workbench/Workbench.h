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

signals:
    /** An opening or an exit of the dialog has ended; \a text says what it took, for a status bar. */
    void stepCounted(const QString& text);
};
