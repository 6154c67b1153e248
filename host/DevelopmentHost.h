#pragma once

#include "Backend.h"
#include "MainWindow.h"
#include "ModuleLoader.h"

#include <QDialog>
#include <QTimer>
#include <QTranslator>

/** The host: a controller, the main window, and the module in its menu. Needs a QApplication. */
class DevelopmentHost
{
public:
    explicit DevelopmentHost(const HostSetup& setup);

    /** Opens recordings, loads the module and places its entry. False when one fails; errorString() says why. */
    bool start();
    QString errorString() const { return error; }

    /** Ends the module, connects to a controller of this \a state and starts the module again. False like start(). */
    bool restart(const ControllerState& state);

    // What the menus do. Each returns why it cannot, or an empty text. While the dialog is open or opening, none can.
    /** Restarts with the controller \a chosen, to which resetController() goes back from then on. */
    QString chooseController(const HostSetup& chosen);
    QString resetController() { return chooseController(initial); }
    QString startRecording(const QString& file);
    QString stopRecording();
    /** Answers from the beginning of the recording again, and restarts the module. Only while replaying. */
    QString rewindReplay();

    /**
     * Puts \a state in force. The module stays loaded, but is loaded again if the protocol crosses 0.13, because a
     * dialog that has met a legacy controller keeps labels hidden. Returns why it cannot, or an empty text.
     */
    QString changeState(const ControllerState& state);

    /** Whether a dialog is open or a command is under way, so that the module must neither end nor change hands. */
    bool isBusy();

    /** Names host, module and controller in one line: "Development Host 1.2.7, ..., controller built-in". */
    QString identity() const;
    /** The module's menu entry. Only after start(). */
    const GuiElement& entry() const { return *loader.module()->get_gui_elements().constFirst(); }
    /** The module's dialog. Only after start(). */
    QDialog* dialog() const { return qobject_cast<QDialog*>(entry().content); }

    MainWindow& window() { return mainWindow; }
    Faults& faults() { return backend.faults(); }
    const ControllerChannel& channel() { return backend.channel(); }
    const BackendVersions& versions() { return backend.versions(); }
    const SimulatedController& controller() const { return backend.controller(); }
    const Replay& replay() const { return backend.replay(); }
    const Recorder& recorder() { return backend.recorder(); }
    bool isReplaying() const { return backend.isReplaying(); }

private:
    bool reloadModule();
    bool placeModule();
    QString controllerText() const;
    void describe();
    void about();

    HostSetup initial; // the controller as it was chosen
    QString error;
    Backend backend;
    MainWindow mainWindow;
    QTranslator translator;
    QTimer describing;   // describes once, however much has changed
    ModuleLoader loader; // last, so that the module ends before the objects it uses
};
