#pragma once

#include <QByteArray>

/** What a command channel talks to: one command in, one answer out. Layers pass on to the link below them. */
class ControllerLink
{
public:
    ControllerLink() = default;
    virtual ~ControllerLink() = default;
    Q_DISABLE_COPY(ControllerLink)

    /**
     * Carries out \a command for \a operation, one of those of CommandRecord, and writes a read's value, or a raw
     * command's reply line, into \a answer; false on failure.
     */
    virtual bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) = 0;
};
