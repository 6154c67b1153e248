#include "DevelopmentHost.h"

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>

static BackendVersions versionsOf(const ControllerIdentity& controller)
{
    return {{1, 0, 0}, controller.protocol, {1, 0, 0}, controller.model};
}

/** Returns protocol and model in words. A controller file may lack the model. */
static QString textOf(const ControllerIdentity& controller)
{
    return "protocol " + controller.protocol.toString()
           + (controller.model.isEmpty() ? QString() : ", model " + controller.model);
}

DevelopmentHost::DevelopmentHost(const HostSetup& setup)
    : setup(setup), simulated(setup.controller.table), recorded(setup.replay),
      faultLayer(isReplaying() ? static_cast<ControllerLink*>(&recorded) : &simulated), commandRecorder(&faultLayer),
      commandChannel(&commandRecorder), backendVersions(versionsOf(setup.controller.table.identity)),
      loader(setup.pluginFile.isEmpty() ? ModuleLoader::defaultFile() : setup.pluginFile)
{
    faultLayer.failMatching(setup.failing);
    faultLayer.setLatency(setup.latency);
    if (ModuleLoader::loadTranslation(&translator, setup.language, loader.fileName()))
        QCoreApplication::installTranslator(&translator);
    connect(&recorded, &Replay::differed, this, &DevelopmentHost::noted);
    connect(&commandRecorder, &Recorder::started, this, [this] {
        recordingProblem.clear();
        emit noted("Recording into " + commandRecorder.fileName());
    });
    connect(&commandRecorder, &Recorder::ended, this, [this](const QString& problem) {
        recordingProblem = problem;
        emit noted(problem.isEmpty() ? "The recording is complete" : problem);
    });
}

QString DevelopmentHost::start(QMainWindow* window)
{
    Q_INIT_RESOURCE(host); // ":/lock.png", from which the module's dialog takes its lock icon
    mainWindow = window;
    // The plug-in is loaded first, because a program that cannot start must not start a recording.
    QString problem = loader.load();
    if (problem.isEmpty())
        problem = openRecordings();
    if (problem.isEmpty())
        placeModule();
    return problem;
}

/** Opens the recordings and connects to the controller. Returns an error message, or an empty string on success. */
QString DevelopmentHost::openRecordings()
{
    if (isReplaying()) {
        QString problem = recorded.open();
        if (!problem.isEmpty())
            return problem;
        setup.controller = {QFileInfo(setup.replay).fileName(), {}};
        setup.controller.table.identity = recorded.recordedController();
    }
    QString problem = setup.record.isEmpty() ? QString() : commandRecorder.start(setup.record);
    if (problem.isEmpty())
        connectTo(setup.controller.table);
    return problem;
}

/** Connects to a controller that answers from \a table: sets the versions and informs the links. */
void DevelopmentHost::connectTo(const ControllerTable& table)
{
    backendVersions = versionsOf(table.identity);
    simulated.setTable(table);
    emit noted("Connected to " + setup.controller.name + ", " + textOf(table.identity));
    commandRecorder.connected(table.identity);
}

QString DevelopmentHost::restart(const ControllerTable& table)
{
    QString problem = loader.load();
    if (!problem.isEmpty())
        return problem;
    connectTo(table);
    placeModule();
    return {};
}

QString DevelopmentHost::chooseController(const NamedController& chosen)
{
    setup.controller = chosen;
    return restart(chosen.table);
}

QString DevelopmentHost::changeController(const ControllerTable& table)
{
    if (table.identity == simulated.table().identity) {
        simulated.setTable(table);
        return {};
    }
    if (!whyBusy().isEmpty())
        return "A new protocol or model needs a new connection. " + whyBusy();
    const VersionInfo direct(0, 13, -1);
    if ((table.identity.protocol < direct) != (backendVersions.protocol() < direct))
        return restart(table);
    connectTo(table);
    return {};
}

QString DevelopmentHost::whyBusy() const
{
    if (commandChannel.isBusy())
        return "A command is under way. Try again when it is answered.";
    return QApplication::activeModalWidget() ? "Close the dialog first." : QString();
}

/** Gives the host's values to the module and places its menu entry. */
void DevelopmentHost::placeModule()
{
    loader.setParameters(&commandChannel, mainWindow, &backendVersions, false);
    loader.placeElements(mainWindow->menuBar());
    entry().menu_entry->setShortcutContext(Qt::ApplicationShortcut); // active in both windows
}

QString DevelopmentHost::description() const
{
    const ControllerTable& table = simulated.table();
    const ModuleInterface* module = loader.module();
    QStringList lines = {
        setup.controller.name + (table.description.isEmpty() ? QString() : ": " + table.description),
        "Controller: " + textOf(table.identity),
        module ? module->get_module_name() + ' ' + module->get_module_version() : "No module",
    };
    if (commandRecorder.isRecording())
        lines.append("Recording into " + QFileInfo(commandRecorder.fileName()).fileName());
    if (!recordingProblem.isEmpty())
        lines.append(recordingProblem);
    if (isReplaying())
        lines.append("Replaying " + QFileInfo(recorded.fileName()).fileName());
    return lines.join('\n');
}

QString DevelopmentHost::title() const
{
    return QString("%1: %2").arg(QCoreApplication::applicationPid()).arg(setup.controller.name);
}
