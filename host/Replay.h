#pragma once

#include "ControllerLink.h"
#include "ControllerState.h"
#include "Recording.h"

#include <QMap>
#include <QObject>

/**
 * Answers from a recording in place of a controller. Commands must come in the recorded order; the first one that
 * differs fails, as does all that follows. What is polled is answered from the last poll recorded before the command
 * that is due ("no" when there is none), and never compared: their number depends on how long somebody looked.
 */
class Replay : public QObject, public ControllerLink
{
    Q_OBJECT

public:
    explicit Replay(const QString& file) : file(file) {}

    /** Reads the recording. False when it is damaged; problem() names file, line and reason. */
    bool open() { return readRecording(file, &commands, &firstProblem); }

    /** \a state with the protocol and the model of the recorded controller. */
    ControllerState recordedController(ControllerState state) const;

    /** What is damaged, or the first command that differed, with its line, what was expected and what came. */
    QString problem() const { return firstProblem; }

    /** Whether every command of the recording has been asked. */
    bool isAtEnd() { return !due(); }

    bool execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer) override;

signals:
    /** A command differs from the recording; \a problem says how. */
    void differed(const QString& problem);

private:
    /** Goes on to the next command that is no poll, and keeps the polls on the way. */
    const RecordedCommand* due();
    bool poll(const QByteArray& command, QByteArray* answer);
    bool differ(const QString& place, const QByteArray& expected, const QByteArray& found);

    QString file;
    QString firstProblem;
    QVector<RecordedCommand> commands;
    QMap<QByteArray, CommandRecord> polls;
    int position = 0;
};
