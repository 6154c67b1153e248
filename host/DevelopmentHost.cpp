#include "DevelopmentHost.h"

#include <QApplication>

static BackendVersions versionsOf(const ControllerIdentity& controller)
{
    return {{1, 0, 0}, controller.protocol, {1, 0, 0}, controller.model};
}

DevelopmentHost::DevelopmentHost(const HostSetup& setup)
    : setup(setup), simulated(setup.controller.table), recorded(setup.replay),
      faultLayer(isReplaying() ? static_cast<ControllerLink*>(&recorded) : &simulated), commandRecorder(&faultLayer),
      commandChannel(&commandRecorder), backendVersions(versionsOf(setup.controller.table.identity)), mainWindow(this),
      loader(setup.pluginFile.isEmpty() ? ModuleLoader::defaultFile() : setup.pluginFile)
{
    faultLayer.failMatching(setup.failing);
    faultLayer.setLatency(setup.latency);
    QObject::connect(&mainWindow, &MainWindow::measurementSwitched, &mainWindow,
                     [this](bool isOn) { loader.setMeasurementRunning(isOn); });
    if (ModuleLoader::loadTranslation(&translator, setup.language, loader.fileName()))
        QCoreApplication::installTranslator(&translator);
}

bool DevelopmentHost::start()
{
    Q_INIT_RESOURCE(host); // ":/lock.png", from which the module's dialog takes its lock icon
    // The plug-in first: a program that cannot start must not begin a recording.
    if (reloadModule())
        error = openRecordings();
    return placeModule();
}

/** Opens the recordings and connects to the controller. Returns why it cannot, or an empty text. */
QString DevelopmentHost::openRecordings()
{
    if (isReplaying()) {
        QString problem = recorded.open();
        if (!problem.isEmpty())
            return problem;
        setup.controller = {tr("as recorded"), {}};
        setup.controller.table.identity = recorded.recordedController();
    }
    QString problem = setup.record.isEmpty() ? QString() : commandRecorder.start(setup.record);
    if (problem.isEmpty())
        connectTo(setup.controller.table);
    return problem;
}

/** Connects to a controller that answers as \a table says: sets the versions, and informs the links. */
void DevelopmentHost::connectTo(const ControllerTable& table)
{
    backendVersions = versionsOf(table.identity);
    simulated.setTable(table);
    commandRecorder.connected(table.identity);
}

bool DevelopmentHost::restart(const ControllerTable& table)
{
    if (reloadModule())
        connectTo(table);
    return placeModule();
}

QString DevelopmentHost::chooseController(const NamedController& chosen)
{
    if (!whyBusy().isEmpty())
        return whyBusy();
    setup.controller = chosen;
    return restart(chosen.table) ? QString() : error;
}

QString DevelopmentHost::startRecording(const QString& file)
{
    return whyBusy().isEmpty() ? commandRecorder.start(file) : whyBusy();
}

QString DevelopmentHost::stopRecording()
{
    if (!whyBusy().isEmpty())
        return whyBusy();
    commandRecorder.stop();
    return {};
}

QString DevelopmentHost::rewindReplay()
{
    if (!whyBusy().isEmpty())
        return whyBusy();
    recorded.rewind();
    return restart(simulated.table()) ? QString() : error;
}

QString DevelopmentHost::changeController(const ControllerTable& table)
{
    if (table.identity == simulated.table().identity) {
        simulated.setTable(table);
        return {};
    }
    if (!whyBusy().isEmpty())
        return tr("A new protocol or model is a new connection. ") + whyBusy();
    const VersionInfo direct(0, 13, -1);
    if ((table.identity.protocol < direct) != (backendVersions.protocol() < direct))
        return restart(table) ? QString() : error;
    connectTo(table);
    return {};
}

QString DevelopmentHost::whyBusy() const
{
    if (commandChannel.isBusy())
        return tr("A command is under way; try again when it is answered.");
    return QApplication::activeModalWidget() ? tr("Close the dialog first.") : QString();
}

/** Loads the module, anew if there is one; it has no place yet. */
bool DevelopmentHost::reloadModule()
{
    loader.unload();
    error = loader.load() ? QString() : loader.errorString();
    return error.isEmpty();
}

/** Hands the host's values over and places the entry, unless there is an error already. */
bool DevelopmentHost::placeModule()
{
    if (!error.isEmpty())
        return false;
    loader.setParameters(&commandChannel, &mainWindow, &backendVersions, false);
    loader.placeElements(mainWindow.menuBar());
    loader.setMeasurementRunning(mainWindow.isMeasurementRunning());
    entry().menu_entry->setShortcutContext(Qt::ApplicationShortcut); // in the workbench as well
    mainWindow.describe();
    return true;
}

QString DevelopmentHost::identity() const
{
    return QString("Development Host %1, %2, controller %3").arg(HOST_VERSION, moduleText(), controllerText());
}

QString DevelopmentHost::moduleText() const
{
    const ModuleInterface* module = loader.module();
    return module ? module->get_module_name() + ' ' + module->get_module_version() : tr("no module");
}

QString DevelopmentHost::controllerText() const
{
    const QString description = simulated.table().description;
    return description.isEmpty() ? controllerName() : controllerName() + ": " + description;
}
