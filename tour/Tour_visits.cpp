#include "Tour.h"

#include <QDoubleSpinBox>

void Tour::changeSettings()
{
    visit("Raise the internal frequency", "synccard internal_frequency d01 = 61", [this] {
        waitForPoll();
        look("direct-settings");
        lookAtWorkbench();
        user->focusBy("label_frequency");
        user->press("doubleSpinBox_frequency", Qt::Key_Up);
        user->leave("OK");
    });
    visit("Change the source and take it back", {}, [this] {
        user->focusBy("label_source");
        demand(user->choose("comboBox_source", "video"), "the source cannot be chosen");
        look("external-source");
        user->leave("Cancel");
    });
    const QString edited = "synccard output_delay d01 ch01 = 1.234\n"
                           "synccard output_during_idle d01 ch04 = yes";
    visit("Edit a delay and an idle flag", edited, [this] {
        QDoubleSpinBox* editor = user->editDelay(0);
        if (!demand(editor, "the delay editor does not open"))
            return;
        look("delay-editor");
        DialogUser::type(editor, "1234", Qt::Key_Return);
        user->clickCell(3, 2);
        look({});
        user->leave("OK");
    });
    visit("Choose a predefined mode", "synccard active_mode = cam100", [this] {
        user->focusBy("label_supportedSynccardModes");
        demand(user->choose("comboBox_modes", "cam100"), "the mode cannot be chosen");
        look("predefined-mode");
        user->leave("OK");
    });
}

void Tour::meetOtherControllers()
{
    restart("protocol = 0.12.7\n"
            "synccard active_mode = slave");
    visit("Choose a mode on a legacy controller", "synccard active_mode = cam100", [this] {
        look("legacy");
        demand(user->choose("comboBox_modes", "cam100"), "the mode cannot be chosen");
        user->leave("OK");
    });
    restart("config is_changeable = no");
    visit("Look at a locked controller", {}, [this] {
        waitForPoll();
        look("locked");
        user->press("comboBox_modes", Qt::Key_Up);
        demand(!user->find<QWidget>("pushButton_Ok")->isEnabled(), "OK is enabled");
        user->leave("Escape");
    });
    restart("synccard available = no");
    visit("Look at a controller without synccard", {}, [this] {
        look("no-synccard");
        demand(!user->find<QWidget>("label_error")->isHidden(), "the notice is missing");
        user->leave("close");
    });
}

/** Opens the dialog and cancels. On a controller other than "full", reads may fail, and the dialog might not open. */
void Tour::openAndCancel()
{
    visit("Open the dialog and cancel", {}, [this] {
        // Without a synccard nothing is polled.
        if (user->find<QWidget>("label_error")->isHidden())
            waitForPoll();
        look("opening");
        user->leave("Cancel");
    });
}
