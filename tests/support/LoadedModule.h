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

/** The built plug-in, loaded as a host loads it, on a scripted controller. Every Qt warning fails the test. */
class LoadedModule
{
public:
    /** Connects to the standard controller, changed by \a script, lines of a controller file. */
    explicit LoadedModule(const QByteArrayList& script = {});
    ~LoadedModule();

    /** Connects to a controller with the protocol and model in \a versionsText. */
    void connectTo(const QString& versionsText);

    QDialog* dialog() const { return qobject_cast<QDialog*>(element->content); }
    /** Uses the dialog that exists now. */
    DialogUser user() const { return DialogUser(dialog()); }

    template <typename Widget>
    Widget* find(const char* name) const
    {
        return dialog()->findChild<Widget*>(name);
    }

    /**
     * Opens the dialog by its slot, runs \a steps while it is open, and returns what update_and_exec() returned. Fails
     * the test when they leave it open.
     */
    int open(const DialogUser::Steps& steps) const;
    /** Opens the dialog and leaves by Escape. */
    int look() const
    {
        return open([this] { user().leave("Escape"); });
    }

    /** Content and state of the named widget, as textOfWidget() puts it. */
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

/** The versions of a controller from a protocol and its model, "1.10 QUILLSTONE 3" or "newest". */
BackendVersions backend(const QString& text);

/** Fails the running test at any Qt warning but the offscreen platform's own. */
void failOnWarnings();
