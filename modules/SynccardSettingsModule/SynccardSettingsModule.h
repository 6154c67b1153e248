#pragma once

#include "BackendVersions.h"
#include "IOManager.h"
#include "ModuleInterface.h"

#include <QObject>

/**
 * The plug-in's single object. It accepts the host's values, creates the synccard dialog with its menu entry, and
 * deletes the dialog at the end. The host owns the module object. The module object owns the dialog and the action.
 */
class SynccardSettingsModule : public QObject, public ModuleInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID MODULE_IDENTIFIER)
    Q_INTERFACES(ModuleInterface)

public:
    SynccardSettingsModule();
    ~SynccardSettingsModule() override;

    void about_to_exit_module() override;
    void exit_module() override;
    QString get_module_name() const override;
    QString get_module_version() const override;
    QList<_GuiElement*> get_gui_elements() override;
    void set_param(QString name, QVariant value) override;

private:
    void create_dialog();
    void create_action();

    QWidget* mod_parent = nullptr;
    QList<_GuiElement*> gui_elements;
    GuiElement gui_synccardsettings;
    IOManager* iom = nullptr;
    BackendVersions* beVers = nullptr;
    bool bObserverMode = false;
};
