#include "SynccardDialog.h"

#include "BackendVersions.h"
#include "IOManager.h"
#include "answers.h"
#include "reporterror.h"

namespace {

/** Results of saveDirectSettings(). Their numbers are part of the contract. 5 and 6 are not used. */
enum SaveResult {
    Saved = 0,
    DirectSettingsFailed = 1,
    SourceQueryFailed = 2,
    SourceNotSupported = 3,
    SourceFailed = 4,
    FrequencyFailed = 7,
    DivisorFailed = 8,
};

} // namespace

/**
 * Copies the widgets' values into the record of card 0. Does nothing unless the mode is "direct settings" and a card
 * and its channels are listed.
 */
void SynccardDialog::storeActualDirectSettingsToSynccardList()
{
    const int rows = tableWidget_channels->rowCount();
    if (!isDirectSettings(comboBox_modes->currentText()) || !hasCurrentCard() || rows == 0)
        return;
    Synccard* card = synccards.getSynccard(0);
    if (!card) {
        card = new Synccard(0);
        for (int row = 0; row < rows; ++row)
            card->addChannel(new Channel);
        synccards.add(card);
    }
    card->setActiveSource(comboBox_source->currentData().toString());
    card->setFrequency(doubleSpinBox_frequency->value());
    card->setExternalDivisor(spinBox_externalDivisor->value());
    for (int row = 0; row < rows; ++row) {
        Channel* channel = card->channel(row);
        if (!channel)
            continue;
        if (const auto* delayItem = tableWidget_channels->item(row, DelayColumn))
            channel->setDelay(delayItem->text());
        if (const auto* idleItem = tableWidget_channels->item(row, IdleColumn))
            channel->setActiveDuringIdle(idleItem->checkState() == Qt::Checked);
    }
}

/**
 * Writes the direct settings of card 1 and returns a SaveResult. Stops at the first failure, except after
 * a failed channel value.
 */
int SynccardDialog::saveDirectSettings()
{
    storeActualDirectSettingsToSynccardList();
    if (synccards.size() == 0)
        return Saved;
    if (cm->setParameter("synccard active_mode none") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to set Synccard direct settings"));
        return DirectSettingsFailed;
    }
    const Synccard& card = *synccards.at(0);
    int result = saveSource(card);
    if (result == Saved)
        result = saveFrequencyOrDivisor(card);
    if (result == Saved)
        saveChannels(card);
    return result;
}

int SynccardDialog::saveSource(const Synccard& card)
{
    const int number = card.id() + 1;
    const QByteArray source = card.activeSource().toLatin1();
    TextAnswer answer;
    if (cm->getParameter(answer.buffer(), "synccard has_source d%2.2d %s", number, source.constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard source"));
        return SourceQueryFailed;
    }
    if (!answer.isYes())
        return SourceNotSupported;
    sSentSource = card.activeSource();
    if (cm->setParameter("synccard source d%2.2d %s", number, source.constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to set Synccard source"));
        return SourceFailed;
    }
    return Saved;
}

int SynccardDialog::saveFrequencyOrDivisor(const Synccard& card)
{
    const int number = card.id() + 1;
    if (card.activeSource() == QLatin1String("internal")) {
        if (cm->setParameter("synccard internal_frequency d%2.2d %.6f", number, card.frequency()) != 0) {
            reportError(cm, QStringLiteral("Error: Unable to set Synccard internal frequency"));
            return FrequencyFailed;
        }
    } else if (!isProtocolWithoutDivisor()) {
        if (cm->setParameter("synccard external_divisor d%2.2d %d", number, card.externalDivisor()) != 0) {
            reportError(cm, QStringLiteral("Error: Unable to set Synccard external divisor"));
            return DivisorFailed;
        }
    }
    return Saved;
}

/** Writes the delay and the idle flag of every channel. Reports each failure and continues with the next value. */
void SynccardDialog::saveChannels(const Synccard& card)
{
    const int number = card.id() + 1;
    for (int i = 0; i < card.channelsCount(); ++i) {
        const int channelNumber = i + 1;
        const double delay = card.channel(i)->delay();
        const char* active = card.channel(i)->activeDuringIdle() ? "yes" : "no";
        if (cm->setParameter("synccard output_delay d%2.2d ch%2.2d %.6f", number, channelNumber, delay) != 0)
            reportError(cm, QStringLiteral("Error: Unable to set Synccard d0%1 channel ch0%2 delay %3")
                                .arg(number)
                                .arg(channelNumber)
                                .arg(delay));
        if (cm->setParameter("synccard output_during_idle d%2.2d ch%2.2d %s", number, channelNumber, active) != 0)
            reportError(cm, QStringLiteral("Error: Unable to set Synccard d0%1 channel ch0%2 active during idle %3")
                                .arg(number)
                                .arg(channelNumber)
                                .arg(QLatin1String(active)));
    }
}

/** Writes the source. Returns 0 on success. Even a failed write counts as sent: the controller may have accepted it. */
int SynccardDialog::setSourceToHub(const QString& source)
{
    sSentSource = source;
    if (cm->setParameter("synccard source d01 %s", source.toLatin1().constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to set Synccard source"));
        return -1;
    }
    return 0;
}

/**
 * Writes the chosen output if the controller offers it and does not use it yet. Returns true if the controller uses
 * the chosen output afterwards.
 */
bool SynccardDialog::setSyncOutputToHub(const QByteArray& source, const QByteArray& output)
{
    if (!isProtocolAtLeast(1, 23) || source.isEmpty() || output.isEmpty())
        return false;
    bool isOffered = false;
    if (cm->getParameterBool(&isOffered, "synccard has_output d01 %s %s", source.constData(), output.constData()) != 0
        || !isOffered)
        return false;
    OutputAnswer current;
    const bool isCurrentKnown = cm->getParameter(current.buffer(), "synccard output d01") == 0;
    if (isCurrentKnown && current.text() == QLatin1String(output))
        return true;
    if (cm->setParameter("synccard output d01 %s", output.constData()) != 0) {
        reportError(cm, QStringLiteral("Error: Unable to set Synccard output"));
        return false;
    }
    return true;
}
