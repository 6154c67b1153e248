#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "Faults.h"
#include "HostSetup.h"
#include "ModuleLoader.h"
#include "Recorder.h"
#include "Replay.h"
#include "SimulatedController.h"

#include <QDialog>
#include <QTranslator>

class QMainWindow;

/**
 * The host: a controller, and a module connected to it. Commands go from the channel through recorder and faults to the
 * simulated controller, or to the recording that replaces it. Needs a QApplication.
 */
class DevelopmentHost : public QObject
{
    Q_OBJECT

public:
    explicit DevelopmentHost(const HostSetup& setup);

    // These functions return an error message, or an empty string on success. While the host is busy, only
    // changeController() may be called.
    /**
     * Loads the module, opens recordings, and places the module's menu entry in \a window. The window becomes the
     * parent of the module's dialog. Before the window is destroyed, call endModule().
     */
    QString start(QMainWindow* window);
    /** Ends the module, connects to a controller that answers from \a table, and starts the module again. */
    QString restart(const ControllerTable& table);
    /** Restarts with the controller \a chosen. From then on, resetController() returns to it. */
    QString chooseController(const NamedController& chosen);
    QString resetController() { return chooseController(setup.controller); }
    /**
     * Lets the controller answer from \a table from now on. A new protocol or model needs a new connection, for which
     * the dialog must be closed. If the protocol crosses 0.13, the host loads the module again, because a dialog that
     * was connected to a legacy controller keeps labels hidden.
     */
    QString changeController(const ControllerTable& table);

    void endModule() { loader.unload(); }

    /** Returns why the module cannot be ended or reconfigured now, or an empty string. */
    QString whyBusy() const;

    /** Returns a description of controller, module and recordings, one line each. */
    QString description() const;
    /** Returns process and controller, for window titles. */
    QString title() const;

    /** Returns the module's menu entry. Call it only after start(). */
    const GuiElement& entry() const { return *loader.module()->get_gui_elements().constFirst(); }
    /** Returns the module's dialog. Call it only after start(). */
    QDialog* dialog() const { return qobject_cast<QDialog*>(entry().content); }

    Faults& faults() { return faultLayer; }
    const ControllerChannel& channel() const { return commandChannel; }
    const SimulatedController& controller() const { return simulated; }
    const Replay& replay() const { return recorded; }
    Recorder& recorder() { return commandRecorder; }
    bool isReplaying() const { return !setup.replay.isEmpty(); }

signals:
    /** Announces an event that the log shows as a note. description() and title() may have changed. */
    void noted(const QString& text);

private:
    QString openRecordings();
    void connectTo(const ControllerTable& table);
    void placeModule();

    HostSetup setup; // with the controller as the user chose it
    SimulatedController simulated;
    Replay recorded;
    Faults faultLayer;
    Recorder commandRecorder;
    ControllerChannel commandChannel;
    BackendVersions backendVersions;
    QMainWindow* mainWindow = nullptr;
    QString recordingProblem; // why the last recording ended early, or empty
    QTranslator translator;
    ModuleLoader loader;
};
