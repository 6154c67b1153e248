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
     * Opens recordings, loads the module, and places its entry in the menus of \a window, which becomes the parent of
     * the module's dialog. Before the window is destroyed, call endModule().
     */
    QString start(QMainWindow* window);
    /** Ends the module, connects to a controller that answers as \a table says and starts the module again. */
    QString restart(const ControllerTable& table);
    /** Restarts with the controller \a chosen, to which resetController() goes back from then on. */
    QString chooseController(const NamedController& chosen);
    QString resetController() { return chooseController(setup.controller); }
    /**
     * Lets the controller answer as \a table says from now on. Another protocol or model is a new connection, for which
     * the dialog must be closed. If the protocol crosses 0.13, the module is loaded again, because a dialog that has
     * met a legacy controller keeps labels hidden.
     */
    QString changeController(const ControllerTable& table);

    void endModule() { loader.unload(); }

    /** Returns why the module cannot be ended or reconfigured now, or an empty string. */
    QString whyBusy() const;

    /** Describes controller, module and recordings, one line each. */
    QString description() const;
    /** Names process and controller, for titles. */
    QString title() const;

    /** Returns the module's menu entry. Only after start(). */
    const GuiElement& entry() const { return *loader.module()->get_gui_elements().constFirst(); }
    /** Returns the module's dialog. Only after start(). */
    QDialog* dialog() const { return qobject_cast<QDialog*>(entry().content); }

    Faults& faults() { return faultLayer; }
    const ControllerChannel& channel() const { return commandChannel; }
    const SimulatedController& controller() const { return simulated; }
    const Replay& replay() const { return recorded; }
    Recorder& recorder() { return commandRecorder; }
    bool isReplaying() const { return !setup.replay.isEmpty(); }

signals:
    /** Something has happened that the log takes as a note. description() and title() may have changed. */
    void noted(const QString& text);

private:
    QString openRecordings();
    void connectTo(const ControllerTable& table);
    QString reloadModule();
    void placeModule();

    HostSetup setup; // with the controller as it was chosen
    SimulatedController simulated;
    Replay recorded;
    Faults faultLayer;
    Recorder commandRecorder;
    ControllerChannel commandChannel;
    BackendVersions backendVersions;
    QMainWindow* mainWindow = nullptr;
    QTranslator translator;
    ModuleLoader loader;
};
