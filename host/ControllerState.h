#pragma once

#include "VersionInfo.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

constexpr double minimumFrequency = 10.0; // Hz, of every card's internal source

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
    QVector<SourceState> sources;
    QString source = "internal";
    double frequency = 60.0;     // Hz
    double maxFrequency = 500.0; // Hz
    int divisor = 1;
    QString output = "none";
    double maxDelay = 300.0; // milliseconds
    QVector<ChannelState> channels;

    /** The source with the keyword \a keyword; null when the card does not offer it. */
    const SourceState* findSource(const QString& keyword) const;
};

struct ModeState
{
    QString id;
    QString description;
};

/** Everything the simulated controller knows. */
struct ControllerState
{
    /** One line about the controller for the list of them; no part of what it answers, so not in toJson(). */
    QString description;
    VersionInfo protocol = VersionInfo(1, 23, 0);
    QString model = "QUILLSTONE 3";
    bool locked = false;
    bool refusesSources = false; // fails every "set synccard source"
    /** The answer to "synccard input_frequency"; empty when the card has no sync input. */
    QString input = "video 59.940";
    QVector<ModeState> modes;
    QString activeMode = "none";
    QVector<CardState> cards;
    /** Whether the cards are there at all. */
    bool cardsPresent = true;

    /** Two cards, four channels, four modes, direct settings, all five sources, a video signal on the input. */
    static ControllerState builtIn();

    bool hasMode(const QString& id) const;
    QJsonObject toJson() const;
};
