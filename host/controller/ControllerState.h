#pragma once

#include "ControllerLink.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** A sync source that a card offers, with what depends on it. */
struct SourceState
{
    QString keyword;
    int maxDivisor = 100;
    QStringList outputs;
};

struct ChannelState
{
    double delay = 0.0; // milliseconds
    bool activeDuringIdle = false;
};

struct CardState
{
    QString model = "0x0402";
    QString serial = "0";
    QString description = "Sync card";
    QVector<SourceState> sources = builtInSources();
    QString source = "internal";
    double maxFrequency = 500.0; // Hz
    double frequency = 60.0;     // Hz
    int divisor = 1;
    QString output = "none";
    double maxDelay = 300.0; // milliseconds
    QVector<ChannelState> channels;

    static QVector<SourceState> builtInSources();

    /** The source with the keyword \a keyword; null when the card does not offer it. */
    const SourceState* findSource(const QString& keyword) const;
    /** The keywords of its sources. */
    QStringList offeredSources() const;
    /** "none", and what the current source can drive. */
    QStringList offeredOutputs() const;
    /** Makes \a offered the source; lowers a divisor beyond its largest, and sets an output that it cannot drive to
     * "none". */
    void select(const SourceState& offered);
    /** The largest divisor of the current source. */
    int maxDivisor() const;
};

struct ModeState
{
    QString id;
    QString description;
};

/** Everything the simulated controller knows. StateDescription.h says which values each field takes. */
struct ControllerState
{
    QString description; // one line for the list of controllers; the controller itself never sends it
    VersionInfo protocol = VersionInfo(1, 23, 0);
    QString model = "QUILLSTONE 3";
    bool locked = false;
    bool refusesSources = false; // fails every "set synccard source"
    /** The answer to "synccard input_frequency"; empty when the card has no sync input. */
    QString input = "video 59.940";
    QVector<ModeState> modes;
    QString activeMode = "none"; // "none" stands for direct settings
    QVector<CardState> cards;
    bool cardsPresent = true; // false: there are no cards, whatever the list says

    /** Two cards, four channels, four modes, direct settings, all five sources, a video signal on the input. */
    static ControllerState builtIn();

    ControllerIdentity identity() const { return {protocol, model}; }
    /** "none", and the identifiers of the modes. */
    QStringList offeredModes() const;
};
