#include "ModuleLoader.h"

#include "BackendVersions.h"
#include "IOManager.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

namespace {

/** Returns the menu \a title of \a menuBar. Creates the menu if it does not exist. */
QMenu* menuOf(QMenuBar* menuBar, const QString& title)
{
    const QList<QAction*> actions = menuBar->actions();
    for (const QAction* action : actions) {
        if (action->menu() && action->text() == title)
            return action->menu();
    }
    return menuBar->addMenu(title);
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

QString ModuleLoader::load()
{
    unload();
    const QString expectedPlugin = file + ": expected a module plug-in \"" MODULE_IDENTIFIER "\", found ";
    if (!QFileInfo(file).isFile())
        return expectedPlugin + "no such file";
    const QString identifier = loader.metaData().value("IID").toString();
    if (identifier.isEmpty())
        return expectedPlugin + "not a Qt plug-in";
    if (identifier != MODULE_IDENTIFIER)
        return expectedPlugin + '"' + identifier + '"';
    QObject* instance = loader.instance();
    if (!instance)
        return file + ": expected a plug-in that loads, found " + loader.errorString();
    interface = qobject_cast<ModuleInterface*>(instance);
    if (interface)
        return {};
    const QString className = instance->metaObject()->className();
    loader.unload();
    return QString("%1: expected an object with the interface \"%2\", found %3 without it")
        .arg(file, qobject_interface_iid<ModuleInterface*>(), className);
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
    for (const GuiElement* element : elements)
        menuOf(menuBar, element->menu_name)->addAction(element->menu_entry);
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
