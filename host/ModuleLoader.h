#pragma once

#include "ModuleInterface.h"

#include <QLocale>
#include <QPluginLoader>

class BackendVersions;
class IOManager;
class QMenuBar;
class QTranslator;

/**
 * Loads one module plug-in, places its menu entries, and ends the module. Call load(), then setParameters(), then
 * placeElements(). unload() or the destructor ends the module in the order that ModuleInterface requires. The caller
 * keeps ownership of the objects that setParameters() passes on. They must outlive the module.
 */
class ModuleLoader
{
public:
    explicit ModuleLoader(const QString& file);
    ~ModuleLoader() { unload(); }
    Q_DISABLE_COPY(ModuleLoader)

    /** Returns the path of the plug-in that belongs to the running program, in the build tree or an installation. */
    static QString defaultFile();

    /**
     * Loads the module's texts in \a language from the directory of \a pluginFile, such as
     * SynccardSettingsModule_de.qm. Returns false if they are missing. Install the translator before the module is
     * loaded.
     */
    static bool loadTranslation(QTranslator* translator, const QLocale& language, const QString& pluginFile);

    QString fileName() const { return file; }

    /**
     * Ends any earlier module, and loads the plug-in if its identifiers are the expected ones. Returns an error message
     * with file, expected and found, or an empty string on success.
     */
    QString load();

    /** Returns the module object, which belongs to this loader, or null if no module is loaded. */
    ModuleInterface* module() const { return interface; }

    /** Gives the host's four values to the module. */
    void setParameters(IOManager* commandManager, QWidget* moduleParent, BackendVersions* versions, bool observerMode);

    /** Appends the module's menu entries to their menus in \a menuBar. Ignores their order numbers. */
    void placeElements(QMenuBar* menuBar);

    /** Ends the module, deletes it and unmaps the library. */
    void unload();

private:
    QString file;
    QPluginLoader loader;
    ModuleInterface* interface = nullptr;
};
