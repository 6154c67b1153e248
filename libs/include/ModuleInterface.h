#pragma once

#include <QAction>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <QtPlugin>

/**
 * One menu entry of a module. The module owns the record, the action and the content. The host reads the record
 * after ModuleInterface::get_gui_elements() and places the action in its menus.
 */
struct _GuiElement // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the contract's name
{
    _GuiElement() = default;
    ~_GuiElement() = default;

    /** The action of the menu entry. Only the module handles its activation. */
    QAction* menu_entry = nullptr;
    /** The position of the menu entry in its menu. Smaller numbers come first. */
    int menu_entry_order_number = 0;
    /** The translated name of the menu, with its mnemonic. */
    QString menu_name;
    /** The position of the menu in the menu bar. Smaller numbers come first. */
    int menu_order_number = 0;
    /** The widget that the menu entry opens, or null after its deletion. */
    QWidget* content = nullptr;
    /** If 0, the host disables the menu entry while a measurement runs. */
    int action_active_during_measurement = 0;
};
typedef _GuiElement GuiElement; // NOLINT(modernize-use-using): the contract's form

/**
 * The functions that every module plug-in offers to the host. The host calls them on its GUI thread in this order:
 * - set_param() for each of the four values that it has
 * - get_gui_elements()
 * - at shutdown, while the parent widget still exists: about_to_exit_module(), then exit_module()
 *
 * Finally the host deletes the module object, which it owns.
 */
class ModuleInterface
{
public:
    virtual ~ModuleInterface() = default;

    /** Announces that the host is about to call exit_module(). */
    virtual void about_to_exit_module() = 0;

    /** Deletes the module's windows. The host's objects must still be alive. A second call is harmless. */
    virtual void exit_module() = 0;

    /** Returns the module's translated name. */
    virtual QString get_module_name() const = 0;

    /** Returns the module's version, such as "v1.2.7". */
    virtual QString get_module_version() const = 0;

    /**
     * Returns the module's menu entries, which the module owns. The first call creates them, and so does the first
     * call after exit_module().
     */
    virtual QList<_GuiElement*> get_gui_elements() = 0;

    /**
     * Gives one of the host's values to the module, before the first get_gui_elements():
     * "CommandManager" (IOManager*), "ModuleParent" (QWidget*), "BackendVersions" (BackendVersions*) and
     * "ObserverMode" (bool). The host keeps ownership of the objects. The module ignores any other name. A value
     * that cannot be converted counts as null or false.
     */
    virtual void set_param(QString name, QVariant value) = 0;
};

Q_DECLARE_INTERFACE(ModuleInterface, "org.zorvan.zorvan2.gui.Module/0.2.0")
Q_DECLARE_METATYPE(QWidget*)
