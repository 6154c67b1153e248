#pragma once

#include "CommandRecord.h"
#include "VersionInfo.h"

/** What a channel and a recording know of a controller. */
struct ControllerIdentity
{
    VersionInfo protocol = VersionInfo(0, 0, 0);
    QString model;

    bool operator==(const ControllerIdentity& other) const
    {
        return protocol == other.protocol && model == other.model;
    }
};

/** Below a command channel: takes one command and gives one answer. A layer passes both on to the link below it. */
class ControllerLink
{
public:
    ControllerLink() = default;
    virtual ~ControllerLink() = default;
    Q_DISABLE_COPY(ControllerLink)

    /** The commands from now on are for \a controller. */
    virtual void connected(const ControllerIdentity& /*controller*/) {}

    /**
     * Carries out \a command and writes a read's value, or a raw command's reply line, into \a answer; false on
     * failure.
     */
    virtual bool execute(Operation operation, const QByteArray& command, QByteArray* answer) = 0;
};
