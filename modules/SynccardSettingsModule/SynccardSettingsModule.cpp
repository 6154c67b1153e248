#include "SynccardSettingsModule.h"

#include "SynccardDialog.h"

#include <QAction>
#include <QKeySequence>

namespace {

constexpr int menuOrderNumber = 200;
constexpr int menuEntryOrderNumber = 130;

} // namespace

SynccardSettingsModule::SynccardSettingsModule()
{
    // The plug-in may be built against a host's own ModuleInterface.h, whose record may leave its pointers unset.
    gui_synccardsettings.content = nullptr;
    gui_synccardsettings.menu_entry = nullptr;
}

SynccardSettingsModule::~SynccardSettingsModule()
{
    // A host may forget exit_module(). The dialog must not stay behind when the host then unloads the plug-in.
    SynccardSettingsModule::exit_module();
}

void SynccardSettingsModule::about_to_exit_module()
{}

void SynccardSettingsModule::exit_module()
{
    delete gui_synccardsettings.content;
    gui_synccardsettings.content = nullptr;
    gui_elements.clear();
}

QString SynccardSettingsModule::get_module_name() const
{
    return tr("GUI Synccard Settings");
}

QString SynccardSettingsModule::get_module_version() const
{
    return QStringLiteral("v%1.%2.%3").arg(MODULE_VERSION_MAJOR).arg(MODULE_VERSION_MINOR).arg(MODULE_VERSION_PATCH);
}

QList<_GuiElement*> SynccardSettingsModule::get_gui_elements()
{
    if (!gui_elements.isEmpty())
        return gui_elements;
    create_dialog();
    gui_synccardsettings.menu_name = tr("H&ardware");
    gui_synccardsettings.menu_order_number = menuOrderNumber;
    gui_synccardsettings.menu_entry_order_number = menuEntryOrderNumber;
    gui_synccardsettings.action_active_during_measurement = 0;
    create_action();
    gui_elements.append(&gui_synccardsettings);
    return gui_elements;
}

void SynccardSettingsModule::create_dialog()
{
    auto* dialog = new SynccardDialog(iom, mod_parent, beVers);
    gui_synccardsettings.content = dialog;
    // The host's widget is the dialog's parent and may delete it before exit_module().
    connect(dialog, &QObject::destroyed, this, [this] { gui_synccardsettings.content = nullptr; });
}

void SynccardSettingsModule::create_action()
{
    auto* action = new QAction(tr("&Synccard"), this);
    action->setStatusTip(tr("Change Synccard settings"));
    action->setWhatsThis(tr("Change Synccard settings"));
    action->setShortcut(QKeySequence(tr("Shift+F7")));
    connect(action, SIGNAL(triggered()), gui_synccardsettings.content, SLOT(update_and_exec()));
    gui_synccardsettings.menu_entry = action;
}

void SynccardSettingsModule::set_param(QString name, QVariant value)
{
    if (name == QLatin1String("CommandManager"))
        iom = value.value<IOManager*>();
    else if (name == QLatin1String("ModuleParent"))
        mod_parent = value.value<QWidget*>();
    else if (name == QLatin1String("BackendVersions"))
        beVers = value.value<BackendVersions*>();
    else if (name == QLatin1String("ObserverMode"))
        bObserverMode = value.toBool();
}
