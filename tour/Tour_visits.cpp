#include "Tour.h"

#include <QComboBox>
#include <QDoubleSpinBox>

#include <cmath>

namespace {

bool isBefore(const ControllerState& state, int major, int minor)
{
    return state.protocol < VersionInfo(major, minor, -1);
}

/** The largest internal frequency that the dialog shows of the first card. */
double largestFrequency(const ControllerState& state)
{
    return isBefore(state, 1, 5) ? 60.0 : state.cards.value(0).maxFrequency;
}

/** The internal frequency as the dialog shows it, and writes it. */
double shownFrequency(const ControllerState& state)
{
    return std::round(qMin(state.cards.first().frequency, largestFrequency(state)) * 100.0) / 100.0;
}

/** From protocol 1.23 on OK writes the output shown: the only one that the source drives is shown as chosen. */
void writeOutput(ControllerState* state)
{
    CardState& card = state->cards.first();
    const QStringList outputs = card.findSource(card.source)->outputs;
    if (!isBefore(*state, 1, 23) && outputs.size() == 1)
        card.output = outputs.first();
}

/** OK writes the direct settings as the dialog shows them, which rounds the frequency and the delays. */
void writeAsShown(ControllerState* state)
{
    CardState& card = state->cards.first();
    if (card.source == "internal")
        card.frequency = shownFrequency(*state);
    for (ChannelState& channel : card.channels)
        channel.delay = std::round(channel.delay * 1000.0) / 1000.0;
    writeOutput(state);
}

/** The first mode that is not in force; empty when there is none. */
QString modeToChoose(const ControllerState& state)
{
    QStringList ids = state.offeredModes();
    ids.removeAll("none");
    ids.removeAll(state.activeMode);
    return ids.value(0);
}

/** What a visit changes, or looks at; a bit each. */
enum Visit { Frequency = 1, Source = 2, Channels = 4, Mode = 8, Lock = 16, Direct = 7, Change = 15, Any = 31 };

/** Why a controller of this \a state leaves no room for the \a visit; an empty text when there is room. */
QString obstacle(const ControllerState& state, Visit visit)
{
    const CardState card = state.cards.value(0);
    const bool hasBothEdges = !isBefore(state, 1, 15);
    const int sources = card.sources.size() - (!hasBothEdges && card.findSource("ttlboth") ? 1 : 0);
    const struct
    {
        Visit visits;
        bool holds;
        const char* text;
    } reasons[] = {
        {Any, state.cards.isEmpty() || !state.cardsPresent, "the controller has no synccard"},
        {Any, isBefore(state, 0, 8), "before protocol 0.8 the dialog shows no synccard"},
        {Lock, isBefore(state, 1, 9), "before protocol 1.9 the dialog knows no lock"},
        {Change, state.locked, "the controller is locked"},
        {Mode, modeToChoose(state).isEmpty(), "there is no other predefined mode"},
        {Direct, isBefore(state, 1, 2), "before protocol 1.2 there are no direct settings"},
        {Direct, state.activeMode != "none", "a predefined mode is active"},
        {Direct, state.refusesSources, "the controller refuses every source"},
        {Direct, card.source == "ttlboth" && !hasBothEdges, "before protocol 1.15 ttlboth is not offered"},
        {Direct, card.channels.isEmpty(), "without channels OK and Cancel write no direct settings"},
        {Frequency, card.source != "internal", "the source is external"},
        {Frequency, card.frequency >= largestFrequency(state), "the frequency is at its largest"},
        {Source, sources < 2, "the card offers no second source"},
    };
    for (const auto& reason : reasons) {
        if ((reason.visits & visit) != 0 && reason.holds)
            return reason.text;
    }
    return {};
}

} // namespace

void Tour::raiseFrequency()
{
    visit("Raise the internal frequency", obstacle(expected, Frequency), [this] {
        waitForPoll();
        look("direct-settings");
        lookAtWorkbench();
        user->focusBy("label_frequency");
        user->press("doubleSpinBox_frequency", Qt::Key_Up);
        expected.cards.first().frequency += 1.0;
        writeAsShown(&expected);
        user->leave("OK");
    });
}

void Tour::takeSourceBack()
{
    visit("Change the source and take it back", obstacle(expected, Source), [this] {
        const auto* sources = user->find<QComboBox>("comboBox_source");
        const auto* divisor = user->find<QSpinBox>("spinBox_externalDivisor");
        const int shownDivisor = divisor->value();
        user->focusBy("label_source");
        user->press("comboBox_source", sources->currentIndex() + 1 < sources->count() ? Qt::Key_Down : Qt::Key_Up);
        look("external-source");
        CardState& card = expected.cards.first();
        const SourceState* visited = card.findSource(sources->currentData().toString());
        if (!demand(visited && visited->keyword != card.source, "the source does not change"))
            return;
        // Cancel restores the source, and the frequency or the divisor that was shown beside it. It leaves the output,
        // and beside the internal source the divisor, as the controller changed them with the source.
        const QString source = card.source;
        card.select(*visited);
        card.source = source;
        if (source == "internal")
            card.frequency = shownFrequency(expected);
        else if (divisor->value() != shownDivisor)
            card.divisor = shownDivisor;
        user->leave("Cancel");
    });
}

void Tour::editChannels()
{
    visit("Edit a delay and an idle flag", obstacle(expected, Channels), [this] {
        QDoubleSpinBox* editor = user->editDelay(0);
        if (!demand(editor, "the delay editor does not open"))
            return;
        look("delay-editor");
        const int delay = qMin(1234, static_cast<int>(editor->maximum()));
        DialogUser::type(editor, QString::number(delay), Qt::Key_Return);
        CardState& card = expected.cards.first();
        const bool isIdleFixed = initial.cards.last().model == "0x0301";
        user->clickCell(card.channels.size() - 1, 2);
        writeAsShown(&expected);
        card.channels.first().delay = delay / 1000.0;
        if (!isIdleFixed)
            card.channels.last().activeDuringIdle = !card.channels.last().activeDuringIdle;
        look({});
        user->leave("OK");
    });
}

void Tour::chooseMode()
{
    expected.activeMode = modeToChoose(expected);
    demand(user->choose("comboBox_modes", expected.activeMode), "the mode cannot be chosen");
}

void Tour::choosePredefinedMode()
{
    visit("Choose a predefined mode", obstacle(expected, Mode), [this] {
        user->focusBy("label_supportedSynccardModes");
        chooseMode();
        look("predefined-mode");
        writeOutput(&expected);
        user->leave("OK");
    });
}

void Tour::meetLegacyController()
{
    ControllerState legacy = initial;
    legacy.protocol = VersionInfo(0, 12, 7);
    legacy.locked = false; // a legacy controller knows no lock
    legacy.activeMode = legacy.offeredModes().constLast();
    restart(legacy);
    visit("Choose a mode on a legacy controller", obstacle(legacy, Mode), [this] {
        look("legacy");
        chooseMode();
        user->leave("OK");
    });
}

void Tour::meetLockedController()
{
    ControllerState locked = initial;
    locked.locked = true;
    restart(locked);
    visit("Look at a locked controller", obstacle(locked, Lock), [this] {
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
    visit("Look at a controller without synccard", {}, [this] {
        look("no-synccard");
        demand(!user->find<QWidget>("label_error")->isHidden(), "the notice is missing");
        user->leave("close");
    });
}
