#pragma once

#include "ModuleInterface.h"

#include <QLocale>
#include <QPluginLoader>

class BackendVersions;
class IOManager;
class QMenuBar;
class QTranslator;

/**
 * Loads one module plug-in, places its menu entries, and ends it. Call load(), then setParameters(), then
 * placeElements(); unload() or the destructor ends the module in the order that ModuleInterface asks for. What
 * setParameters() hands over stays the caller's and must outlive the module.
 */
class ModuleLoader
{
public:
    explicit ModuleLoader(const QString& file);
    ~ModuleLoader() { unload(); }
    Q_DISABLE_COPY(ModuleLoader)

    /** Where the plug-in lies beside the running program, in the build tree as in an installation. */
    static QString defaultFile();

    /**
     * Loads the module's texts in \a language from beside \a pluginFile, such as SynccardSettingsModule_de.qm. Returns
     * false when there are none. Install the translator before the module is loaded.
     */
    static bool loadTranslation(QTranslator* translator, const QLocale& language, const QString& pluginFile);

    QString fileName() const { return file; }

    /** Reads the metadata, and loads the plug-in if its identifiers are the expected ones. */
    bool load();

    /** Why load() refused: file, expected and found, in one line. */
    QString errorString() const { return error; }

    /** The module object; null when none is loaded. It belongs to this loader. */
    ModuleInterface* module() const { return interface; }

    /** Hands the host's four values over. */
    void setParameters(IOManager* commandManager, QWidget* moduleParent, BackendVersions* versions, bool observerMode);

    /** Appends the module's menu entries to their menus in \a menuBar. The order numbers are for hosts of many modules.
     */
    void placeElements(QMenuBar* menuBar);

    /** Ends the module, deletes it and unmaps the library. */
    void unload();

private:
    bool refuse(const QString& expected, const QString& found);

    QString file;
    QPluginLoader loader;
    ModuleInterface* interface = nullptr;
    QString error;
};
