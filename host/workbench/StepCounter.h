#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

class DevelopmentHost;
struct CommandRecord;

/**
 * Counts the commands of each opening and exit of the module's dialog, and their time from the begin of the first to
 * the end of the last. Polls do not count. Does not own the host.
 */
class StepCounter : public QObject
{
    Q_OBJECT

public:
    StepCounter(DevelopmentHost* host, QObject* parent);

signals:
    /** An opening or an exit has ended; \a text says what it took: "Opening: 31 commands, 4.2 ms". */
    void counted(const QString& text);

private:
    void add(const CommandRecord& record);
    void endPause();
    void end(const QString& step);

    DevelopmentHost* host;
    QPointer<QDialog> dialog; // the one that is watched
    QTimer pause;
    QElapsedTimer sinceLast; // since the last command was answered
    qint64 microseconds = 0; // from the begin of the first command to there
    int commands = 0;
    bool hasWaited = false; // for somebody, since the last command
    bool isOpening = false;
};
