#pragma once

#include "FormattingChannel.h"

#include <QObject>

class ControllerLink;

/** The command channel between a module and a controller's link, which it does not own. GUI thread only. */
class ControllerChannel : public QObject, public FormattingChannel
{
    Q_OBJECT

public:
    explicit ControllerChannel(ControllerLink* link) : link(link) {}

    void reportError(const char* category, const char* systemTag, int flag, const char* message) override;

signals:
    /** A command has been answered. */
    void executed(const CommandRecord& record);
    /** The module reported an error; \a message is a finished text. */
    void reported(const QString& category, const QString& systemTag, int flag, const QString& message);

protected:
    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;
    void finished(const CommandRecord& record) override { emit executed(record); }

private:
    ControllerLink* link;
};
