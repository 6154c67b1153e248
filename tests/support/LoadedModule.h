#pragma once

#include "BackendVersions.h"
#include "ControllerChannel.h"
#include "DialogText.h"
#include "DialogUser.h"
#include "ModuleLoader.h"
#include "ScriptedController.h"

#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

/** The built plug-in, loaded as in a host and connected to a scripted controller. Every Qt warning fails the test. */
class LoadedModule
{
public:
    /** Connects to the standard controller, changed by \a script, lines of a controller file. */
    explicit LoadedModule(const QByteArrayList& script = {});
    ~LoadedModule();

    /** Connects to a controller with the protocol and model in \a versionsText. */
    void connectTo(const QString& versionsText);

    QDialog* dialog() const { return qobject_cast<QDialog*>(element->content); }
    /** Returns a user of the dialog that exists now. */
    DialogUser user() const { return DialogUser(dialog()); }

    template <typename Widget>
    Widget* find(const char* name) const
    {
        return dialog()->findChild<Widget*>(name);
    }

    /**
     * Opens the dialog by its slot, runs \a steps while it is open, and returns the result of update_and_exec(). Fails
     * the test if the steps leave the dialog open.
     */
    int open(const DialogUser::Steps& steps) const;
    /** Opens the dialog and closes it by Escape. */
    int look() const
    {
        return open([this] { user().leave("Escape"); });
    }

    /** Returns content and state of the named widget, like textOfWidget(). */
    QByteArray see(const QByteArray& name) const { return textOfWidget(find<QWidget>(name)).toUtf8(); }

    ScriptedController link;
    ControllerChannel channel;
    BackendVersions versions;
    QPointer<QWidget> parent;
    ModuleLoader loader;
    GuiElement* element = nullptr;
    QByteArrayList boxes; // "title: text" of each message box shown, then closed by OK

private:
    void closeBox();

    QTimer boxPoller;
};

/** Returns the versions of a controller from a protocol and its model, "1.10 QUILLSTONE 3" or "newest". */
BackendVersions backend(const QString& text);

/** Fails the running test at any Qt warning except the offscreen platform's own. */
void failOnWarnings();
