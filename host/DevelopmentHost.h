#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "Faults.h"
#include "HostSetup.h"
#include "MainWindow.h"
#include "ModuleLoader.h"
#include "Recorder.h"
#include "Replay.h"
#include "SimulatedController.h"

#include <QCoreApplication>
#include <QDialog>
#include <QTranslator>

/**
 * The host: a controller, the main window, and the module in its menu. Commands go from the channel through recorder
 * and faults to the simulated controller, or to the recording that replaces it. Needs a QApplication.
 */
class DevelopmentHost
{
    Q_DECLARE_TR_FUNCTIONS(DevelopmentHost)

public:
    explicit DevelopmentHost(const HostSetup& setup);

    /** Opens recordings, loads the module and places its entry. False when one fails; errorString() says why. */
    bool start();
    QString errorString() const { return error; }

    /** Ends the module, connects to a controller that answers as \a table says and starts the module again. False like
     * start(). */
    bool restart(const ControllerTable& table);

    // What the menus do. Each returns why it cannot, or an empty text. While the dialog is open or opening, none can.
    /** Restarts with the controller \a chosen, to which resetController() goes back from then on. */
    QString chooseController(const NamedController& chosen);
    QString resetController() { return chooseController(setup.controller); }
    QString startRecording(const QString& file);
    QString stopRecording();
    /** Answers from the beginning of the recording again, and restarts the module. Only while replaying. */
    QString rewindReplay();

    /**
     * Lets the controller answer as \a table says from now on. Another protocol or model is a new connection, for which
     * the dialog must be closed. If the protocol crosses 0.13, the module is loaded again, because a dialog that has
     * met a legacy controller keeps labels hidden. Returns an error message, or an empty string on success.
     */
    QString changeController(const ControllerTable& table);

    /** A dialog is open, or a command is under way: the module must neither end nor change hands. Else empty. */
    QString whyBusy() const;

    /** The name of the controller as it was chosen, or "as recorded". */
    QString controllerName() const { return setup.controller.name; }
    /** The same with its description: "full: Protocol 1.23 with everything". */
    QString controllerText() const;
    /** Name and version of the module, or "no module". */
    QString moduleText() const;
    QString moduleFile() const { return loader.fileName(); }
    /** Names host, module and controller in one line: "Development Host 1.2.7, ..., controller built-in". */
    QString identity() const;
    /** The module's menu entry. Only after start(). */
    const GuiElement& entry() const { return *loader.module()->get_gui_elements().constFirst(); }
    /** The module's dialog. Only after start(). */
    QDialog* dialog() const { return qobject_cast<QDialog*>(entry().content); }

    MainWindow& window() { return mainWindow; }
    Faults& faults() { return faultLayer; }
    const ControllerChannel& channel() const { return commandChannel; }
    const BackendVersions& versions() const { return backendVersions; }
    const SimulatedController& controller() const { return simulated; }
    const Replay& replay() const { return recorded; }
    const Recorder& recorder() const { return commandRecorder; }
    bool isReplaying() const { return !setup.replay.isEmpty(); }

private:
    QString openRecordings();
    void connectTo(const ControllerTable& table);
    bool reloadModule();
    bool placeModule();

    HostSetup setup; // with the controller as it was chosen
    QString error;
    SimulatedController simulated;
    Replay recorded;
    Faults faultLayer;
    Recorder commandRecorder;
    ControllerChannel commandChannel;
    BackendVersions backendVersions;
    MainWindow mainWindow;
    QTranslator translator;
    ModuleLoader loader; // last, so that the module ends before the objects it uses
};
