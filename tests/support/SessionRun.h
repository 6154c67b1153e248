#pragma once

#include "LoadedModule.h"
#include "SessionFile.h"

#include <QSet>

/** Does what the words of \a action say, by keys and mouse where a user has them. Returns why it cannot, or nothing. */
QString act(LoadedModule& module, const QByteArray& action, int line = 0);

/** Runs one case of a session file, leaving the dialog in one way. */
class SessionRun
{
public:
    /** \a way is "OK", "Cancel", "Escape" or "close". */
    SessionRun(const Session& session, const QByteArray& way);

    /** The first thing that differed from the case, with file, line, way of leaving, expected and found. */
    QString problem() const { return firstProblem; }
    /** The lines whose answers were asked for. */
    QSet<int> askedLines() const { return module.link.askedLines; }

    /** Runs the case in every way; the first problem of all, or an answer that nothing asked for. */
    static QString problemOf(const Session& session);

private:
    void run();
    void leave();
    void openAgain();
    void compareOpening();
    void compareWidgets(const QByteArray& key);
    void compareLines(const QString& what, const QByteArrayList& found, const SessionLines& expected);
    void answer(const QByteArray& key);
    void actAll(const QByteArray& key);
    void demand(bool condition, const QString& otherwise, int line = 0);

    Session session;
    QByteArray way;
    LoadedModule module;
    QString firstProblem;
    bool isOk = false;
};
