#include "DevelopmentHost.h"

#include "ControllerMenu.h"
#include "RecordingMenu.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

static QString tr(const char* text)
{
    return QCoreApplication::translate("DevelopmentHost", text);
}

static QString nameOf(const ModuleInterface* module)
{
    return module ? module->get_module_name() + ' ' + module->get_module_version() : tr("no module");
}

static const char* const whyBusy = QT_TRANSLATE_NOOP("DevelopmentHost", "Close the dialog first.");

DevelopmentHost::DevelopmentHost(const HostSetup& setup)
    : initial(setup), backend(setup), mainWindow([this] { return isBusy(); }),
      loader(setup.pluginFile.isEmpty() ? ModuleLoader::defaultFile() : setup.pluginFile)
{
    QObject::connect(&mainWindow, &MainWindow::measurementSwitched, &mainWindow,
                     [this](bool isOn) { loader.setMeasurementRunning(isOn); });
    QObject::connect(&mainWindow, &MainWindow::aboutWanted, &mainWindow, [this] { about(); });
    describing.setSingleShot(true);
    QObject::connect(&describing, &QTimer::timeout, &mainWindow, [this] { describe(); });
    const auto describeSoon = [this] { describing.start(); };
    QObject::connect(&controller(), &SimulatedController::changed, &mainWindow, describeSoon);
    QObject::connect(&replay(), &Replay::moved, &mainWindow, describeSoon);
    QObject::connect(&recorder(), &Recorder::started, &mainWindow, describeSoon);
    QObject::connect(&recorder(), &Recorder::ended, &mainWindow, [=](const QString& problem) {
        mainWindow.say(problem);
        describeSoon();
    });
    if (ModuleLoader::loadTranslation(&translator, setup.language, loader.fileName()))
        QCoreApplication::installTranslator(&translator);
}

bool DevelopmentHost::start()
{
    Q_INIT_RESOURCE(host); // ":/lock.png", from which the module's dialog takes its lock icon
    // The plug-in first: a program that cannot start must not begin a recording.
    error = loader.load() ? backend.start() : loader.errorString();
    mainWindow.addMenu(new RecordingMenu(this));
    if (!isReplaying())
        mainWindow.addMenu(new ControllerMenu(this));
    return placeModule();
}

bool DevelopmentHost::restart(const ControllerState& state)
{
    if (reloadModule())
        backend.connectTo(state);
    return placeModule();
}

QString DevelopmentHost::chooseController(const HostSetup& chosen)
{
    if (isBusy())
        return tr(whyBusy);
    initial.controllerName = chosen.controllerName;
    initial.state = chosen.state;
    return restart(chosen.state) ? QString() : error;
}

QString DevelopmentHost::startRecording(const QString& file)
{
    if (isBusy())
        return tr(whyBusy);
    return backend.recorder().start(file) ? QString() : recorder().problem();
}

QString DevelopmentHost::stopRecording()
{
    if (isBusy())
        return tr(whyBusy);
    backend.recorder().stop();
    return {};
}

QString DevelopmentHost::rewindReplay()
{
    if (isBusy())
        return tr(whyBusy);
    if (reloadModule())
        backend.rewind();
    return placeModule() ? QString() : error;
}

QString DevelopmentHost::changeState(const ControllerState& state)
{
    if (channel().isBusy())
        return tr("a command is under way; try again when it is answered");
    const VersionInfo direct(0, 13, -1);
    const bool isOtherPath = (state.protocol < direct) != (versions().protocol() < direct);
    if (isOtherPath && isBusy())
        return tr("protocol: close the dialog first; across 0.13 the module is loaded anew");
    if (isOtherPath)
        return restart(state) ? QString() : error;
    backend.setState(state);
    return {};
}

bool DevelopmentHost::isBusy()
{
    return QApplication::activeModalWidget() || channel().isBusy();
}

/** Loads the module anew; it has no place yet. */
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
    loader.setParameters(&backend.channel(), &mainWindow, &backend.versions(), false);
    loader.placeElements(mainWindow.menuBar());
    loader.setMeasurementRunning(mainWindow.isMeasurementRunning());
    entry().menu_entry->setShortcutContext(Qt::ApplicationShortcut); // in the workbench as well
    describe();
    return true;
}

QString DevelopmentHost::identity() const
{
    return QString("Development Host %1, %2, controller %3")
        .arg(HOST_VERSION, nameOf(loader.module()), controllerText());
}

/** "built-in", "full: Protocol 1.23 with everything", or that it is a recorded one. */
QString DevelopmentHost::controllerText() const
{
    const QString description = controller().state().description;
    if (isReplaying())
        return tr("as recorded");
    return description.isEmpty() ? initial.controllerName : initial.controllerName + ": " + description;
}

/** Tells the main window what the host is now. */
void DevelopmentHost::describe()
{
    const ModuleInterface* module = loader.module();
    if (!module)
        return;
    const QString name = isReplaying() ? tr("as recorded") : initial.controllerName;
    QStringList recordings;
    if (recorder().isRecording())
        recordings.append(tr("recording %1").arg(QFileInfo(recorder().fileName()).fileName()));
    if (isReplaying())
        recordings.append(tr("replaying %1").arg(QFileInfo(replay().fileName()).fileName()));
    const QString recordingBrief = recordings.join(", ");
    const QStringList brief = QStringList{name, tr("protocol %1").arg(versions().protocol().toString())} + recordings;
    if (isReplaying())
        recordings.append(replay().progress());
    mainWindow.describe({controllerText(), versions().protocol().toString() + ", " + versions().hubModel(),
                         nameOf(module) + ", " + loader.fileName(),
                         recordings.isEmpty() ? tr("none") : recordings.join(", "), recordingBrief, brief.join(", ")});
}

void DevelopmentHost::about()
{
    const ModuleInterface* module = loader.module();
    const QString text = tr("Development Host %1\n%2\nQt %3");
    QMessageBox::about(&mainWindow, tr("About"),
                       text.arg(QString(HOST_VERSION), module ? nameOf(module) : error, QString(qVersion())));
}
