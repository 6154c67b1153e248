#pragma once

#include "LoadedModule.h"
#include "SessionFile.h"

/** Does what the words of \a line say, by keys and mouse where a user has them. Returns why it cannot, or nothing. */
QString act(LoadedModule& module, const SessionLine& line);

/** Runs one case of a session file, leaving the dialog in one way: "OK", "Cancel", "Escape" or "close". */
class SessionRun
{
public:
    /** Runs the case in every way; the first problem of all, or an answer that nothing asked for. */
    static QString problemOf(const Session& session);

private:
    SessionRun(const Session& session, const QByteArray& way);
    void openAgain();
    void compareOpening();
    void compareWidgets(const QByteArray& key);
    void compareLines(const QString& what, const QByteArrayList& found, const SessionLines& expected);
    void interrupt(const QByteArray& text);
    void actAll(const QByteArray& key);
    void demand(bool condition, const QString& otherwise, int line = 0);

    const Session& session;
    QByteArray way;
    SessionLines interruptions; // that have not happened yet
    LoadedModule module;
    QString problem; // the first thing that differed from the case
    bool isOk = false;
};
