#pragma once

#include "LoadedModule.h"
#include "SessionFile.h"

/** Does what the words of \a line say, by keys and mouse where a user has them. Returns why it cannot, or nothing. */
QString act(LoadedModule& module, const SessionLine& line);

/**
 * Returns the first line that differs, with its neighbours, or an empty string: "-" is what was expected, "+" what came
 * in its place. Its position, from 0, goes into \a position.
 */
QString difference(const QByteArrayList& found, const QByteArrayList& expected, int* position = nullptr);

/** Runs one case of a session file, leaving the dialog in one way: "OK", "Cancel", "Escape" or "close". */
class SessionRun
{
public:
    /** The keys that a line of a case may begin with. */
    static QByteArrayList keys();
    /** Runs the case in every way; the first problem of all, or an answer that nothing asked for. */
    static QString problemOf(const Session& session);

private:
    explicit SessionRun(const Session& session) : session(session) {}
    void open(const QByteArray& newPrefix, const QByteArray& newWay);
    void useAndLeave();
    void answer(const QByteArray& key);
    void compareOpening();
    void compareWidgets(const QByteArray& key);
    void compareLines(const QString& what, const QByteArrayList& found, const SessionLines& expected);
    void interrupt(const QByteArray& text);
    void demand(bool condition, const QString& otherwise, int line = 0);
    SessionLines lines(const QByteArray& key) const { return session.lines.value(prefix + key); }

    const Session& session;
    QByteArray prefix; // of the keys of this opening
    QByteArray way;
    SessionLines interruptions; // that have not happened yet
    LoadedModule module;
    QString problem; // the first thing that differed from the case
    bool isOk = false;
};
