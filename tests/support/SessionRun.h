#pragma once

#include "LoadedModule.h"
#include "SessionFile.h"

/** Carries out the action in \a line, by keys and mouse if possible. Returns an error message, or an empty string. */
QString act(LoadedModule& module, const QByteArray& line);

/** Returns the first difference, or an empty string. */
QString difference(const QByteArrayList& found, const QByteArrayList& expected);

/** Runs one case of a session file and closes the dialog in one way: "OK", "Cancel", "Escape" or "close". */
class SessionRun
{
public:
    /** Runs the case in every way. Returns the first problem, or an empty string. */
    static QString problemOf(const Session& session);

private:
    SessionRun(const Session& session, const QByteArray& way) : session(session), way(way) {}
    void open();
    void useAndLeave();
    void compareOpening();
    void compareWidgets(const QByteArray& key);
    void compare(const QString& what, const QByteArrayList& found, const QByteArrayList& expected);
    void interrupt(const QByteArray& text);
    /** Keeps the first problem of all. */
    void keep(const QString& found);
    QByteArrayList lines(const QByteArray& key) const { return session.lines.value(prefix + key); }

    const Session& session;
    QByteArray prefix; // of the keys of this opening
    QByteArray way;
    QByteArray asked;             // one command per line
    QByteArrayList interruptions; // that have not happened yet
    LoadedModule module;
    QString problem; // the first thing that differed from the case
    bool isOk = false;
};
