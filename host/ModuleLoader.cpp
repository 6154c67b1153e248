#include "ModuleLoader.h"

#include "BackendVersions.h"
#include "IOManager.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

#include <algorithm>

namespace {

const char* const orderProperty = "orderNumber";

/** Inserts \a action into a menu or a menu bar, before those with a larger order number. */
void insert(QWidget* menu, QAction* action, int order)
{
    action->setProperty(orderProperty, order);
    const QList<QAction*> actions = menu->actions();
    const auto isBehind = [order](const QAction* other) { return other->property(orderProperty).toInt() > order; };
    const auto next = std::find_if(actions.begin(), actions.end(), isBehind);
    menu->insertAction(next == actions.end() ? nullptr : *next, action);
}

/** The menu \a title of \a menuBar, created at its place in the bar if it does not exist. */
QMenu* menuFor(QMenuBar* menuBar, const QString& title, int order)
{
    const QList<QAction*> actions = menuBar->actions();
    for (const QAction* action : actions) {
        if (action->menu() && action->text() == title)
            return action->menu();
    }
    auto* menu = new QMenu(title, menuBar);
    insert(menuBar, menu->menuAction(), order);
    return menu;
}

} // namespace

ModuleLoader::ModuleLoader(const QString& file) : file(QFileInfo(file).absoluteFilePath()), loader(this->file)
{
    // By default Qt never unmaps a plug-in.
    loader.setLoadHints(QLibrary::LoadHints());
}

QString ModuleLoader::defaultFile()
{
    return QCoreApplication::applicationDirPath() + "/../" MODULE_DIR "/" MODULE_FILE;
}

bool ModuleLoader::loadTranslation(QTranslator* translator, const QLocale& language, const QString& pluginFile)
{
    return translator->load(language, MODULE_NAME, "_", QFileInfo(pluginFile).absolutePath());
}

bool ModuleLoader::load()
{
    const QString expectedPlugin = "a module plug-in \"" MODULE_IDENTIFIER "\"";
    if (!QFileInfo(file).isFile())
        return refuse(expectedPlugin, "no such file");
    const QString identifier = loader.metaData().value("IID").toString();
    if (identifier.isEmpty())
        return refuse(expectedPlugin, "no Qt plug-in");
    if (identifier != MODULE_IDENTIFIER)
        return refuse(expectedPlugin, '"' + identifier + '"');
    QObject* instance = loader.instance();
    if (!instance)
        return refuse("a plug-in that loads", loader.errorString());
    interface = qobject_cast<ModuleInterface*>(instance);
    if (!interface) {
        const QString className = instance->metaObject()->className();
        loader.unload();
        return refuse(QString("an object with the interface \"%1\"")
                          .arg(QLatin1String(qobject_interface_iid<ModuleInterface*>())),
                      className + " without it");
    }
    return true;
}

bool ModuleLoader::refuse(const QString& expected, const QString& found)
{
    error = QString("%1: expected %2, found %3").arg(file, expected, found);
    return false;
}

void ModuleLoader::setParameters(IOManager* commandManager, QWidget* moduleParent, BackendVersions* versions,
                                 bool observerMode)
{
    interface->set_param("CommandManager", QVariant::fromValue(commandManager));
    interface->set_param("ModuleParent", QVariant::fromValue(moduleParent));
    interface->set_param("BackendVersions", QVariant::fromValue(versions));
    interface->set_param("ObserverMode", observerMode);
}

void ModuleLoader::placeElements(QMenuBar* menuBar)
{
    const QList<_GuiElement*> elements = interface->get_gui_elements();
    for (const GuiElement* element : elements) {
        QMenu* menu = menuFor(menuBar, element->menu_name, element->menu_order_number);
        insert(menu, element->menu_entry, element->menu_entry_order_number);
    }
}

void ModuleLoader::setMeasurementRunning(bool isRunning)
{
    const QList<_GuiElement*> elements = interface ? interface->get_gui_elements() : QList<_GuiElement*>();
    for (const GuiElement* element : elements)
        element->menu_entry->setEnabled(!isRunning || element->action_active_during_measurement != 0);
}

void ModuleLoader::unload()
{
    if (!interface)
        return;
    interface->about_to_exit_module();
    interface->exit_module();
    delete interface;
    interface = nullptr;
    loader.unload();
}
