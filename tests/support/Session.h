#pragma once

#include "LoadedModule.h"

#include <QMap>
#include <QVector>

/** The lines of a case by their key, in order. */
using Session = QMap<QByteArray, QByteArrayList>;
Q_DECLARE_METATYPE(Session)

/** A file of tests/data: cases, and named lists of lines. */
struct SessionFile
{
    explicit SessionFile(const char* name);

    QVector<Session> sessions;
    QMap<QByteArray, QByteArrayList> lists;

private:
    QByteArrayList expanded(const QByteArray& line) const;
};

/** One row per case of the file \a name for a test with the parameter "session". */
void addSessions(const char* name);

/** Does what the words of \a action say, by keys and mouse where a user has them. */
void act(LoadedModule& module, const QByteArray& action);
