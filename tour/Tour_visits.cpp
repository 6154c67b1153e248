#include "Tour.h"

#include <QComboBox>
#include <QDoubleSpinBox>

#include <cmath>

namespace {

/** OK writes the frequency with two decimals, and delays in whole microseconds, as the dialog shows them. */
void roundAsShown(CardState* card)
{
    if (card->source == "internal")
        card->frequency = std::round(card->frequency * 100.0) / 100.0;
    for (ChannelState& channel : card->channels)
        channel.delay = std::round(channel.delay * 1000.0) / 1000.0;
}

} // namespace

void Tour::raiseFrequency()
{
    visit("Raise the internal frequency, OK", [this] {
        demand(!initial.cards.isEmpty(), "the tour needs a controller with a synccard");
        demand(!initial.locked, "the tour needs a controller that is not locked");
        const auto* frequency = user->find<QWidget>("doubleSpinBox_frequency");
        if (!demand(frequency->isVisible() && frequency->isEnabled(),
                    "the tour needs a controller on direct settings with the internal source"))
            return;
        waitForPoll();
        look("direct-settings");
        user->focus(Qt::Key_F);
        user->press("doubleSpinBox_frequency", Qt::Key_Up);
        if (hasFailed())
            return;
        CardState& card = expected.cards.first();
        card.frequency = qMin(card.frequency + 1.0, card.maxFrequency);
        roundAsShown(&card);
        expected.activeMode = "none";
        user->leave("OK");
    });
}

void Tour::takeSourceBack()
{
    visit("Change the source, Cancel", [this] {
        const auto* sources = user->find<QComboBox>("comboBox_source");
        user->focus(Qt::Key_C);
        user->press("comboBox_source", Qt::Key_Down);
        look("external-source");
        // Cancel restores the source, but not the divisor and the output that the controller changed with it.
        CardState& card = expected.cards.first();
        const SourceState* visited = card.findSource(sources->currentData().toString());
        if (!demand(visited && visited->keyword != card.source, "the controller offers no second source"))
            return;
        const QString source = card.source;
        card.select(*visited);
        card.source = source;
        user->leave("Cancel");
    });
}

void Tour::editChannels()
{
    visit("Edit a delay and an idle flag, OK", [this] {
        CardState& card = expected.cards.first();
        if (!demand(!card.channels.isEmpty(), "the controller has no channels"))
            return;
        QDoubleSpinBox* editor = user->editDelay(0);
        if (!demand(editor, "the delay editor does not open"))
            return;
        look("delay-editor");
        const int delay = qMin(1234, static_cast<int>(editor->maximum()));
        DialogUser::type(editor, QString::number(delay), Qt::Key_Return);
        const int last = card.channels.size() - 1;
        const bool isIdleFixed = initial.cards.last().model == "0x0301";
        user->clickCell(last, 2);
        roundAsShown(&card);
        card.channels.first().delay = delay / 1000.0;
        if (!isIdleFixed)
            card.channels.last().activeDuringIdle = !card.channels.last().activeDuringIdle;
        look("channels");
        user->leave("OK");
    });
}

void Tour::choosePredefinedMode()
{
    visit("Choose a predefined mode, OK", [this] {
        if (!demand(!initial.modes.isEmpty(), "the controller has no predefined modes"))
            return;
        user->focus(Qt::Key_S);
        demand(user->choose("comboBox_modes", initial.modes.first().id), "the mode cannot be chosen");
        look("predefined-mode");
        expected.activeMode = initial.modes.first().id;
        user->leave("OK");
    });
}

void Tour::meetLegacyController()
{
    ControllerState legacy = initial;
    legacy.protocol = VersionInfo(0, 12, 7);
    legacy.activeMode = legacy.modes.last().id;
    restart(legacy);
    visit("A legacy controller: choose a mode, OK", [this] {
        look("legacy");
        demand(user->choose("comboBox_modes", initial.modes.first().id), "the mode cannot be chosen");
        expected.activeMode = initial.modes.first().id;
        user->leave("OK");
    });
}

void Tour::meetLockedController()
{
    ControllerState locked = initial;
    locked.locked = true;
    restart(locked);
    visit("A locked controller: look, Escape", [this] {
        waitForPoll();
        look("locked");
        user->press("comboBox_modes", Qt::Key_Up);
        demand(!user->find<QWidget>("pushButton_Ok")->isEnabled(), "OK is enabled");
        user->leave("Escape");
    });
}

void Tour::meetControllerWithoutSynccard()
{
    ControllerState bare = initial;
    bare.cards.clear();
    restart(bare);
    visit("A controller without synccard: look, close", [this] {
        look("no-synccard");
        demand(!user->find<QWidget>("label_error")->isHidden(), "the notice is missing");
        user->leave("close");
    });
}
