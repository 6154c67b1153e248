#pragma once

#include "CommandRecord.h"
#include "VersionInfo.h"

/** The properties of a controller that a channel and a recording know. */
struct ControllerIdentity
{
    VersionInfo protocol = VersionInfo(0, 0, 0);
    QString model;

    bool operator==(const ControllerIdentity& other) const
    {
        return protocol == other.protocol && model == other.model;
    }
};

/** A link below a command channel: accepts a command and gives an answer. A layer passes both on to the link below. */
class ControllerLink
{
public:
    ControllerLink() = default;
    virtual ~ControllerLink() = default;
    Q_DISABLE_COPY(ControllerLink)

    /** Announces that the commands from now on are for \a controller. */
    virtual void connected(const ControllerIdentity& /*controller*/) {}

    /**
     * Carries out \a command. Writes a read's value or a raw command's reply line into \a answer. Returns false on
     * failure.
     */
    virtual bool execute(Operation operation, const QByteArray& command, QByteArray* answer) = 0;
};
