#pragma once

#include <QByteArrayList>
#include <QMap>
#include <QMetaType>
#include <QVector>

/** A case of a session file: its lines by their key, in order. */
struct Session
{
    /** Returns the value of the single line with this key, or \a otherwise. */
    QByteArray text(const QByteArray& key, const QByteArray& otherwise = QByteArray()) const
    {
        return lines.value(key, {otherwise}).first();
    }

    QByteArray name;
    QByteArray place; // "sessions.txt:12", where the case starts
    QMap<QByteArray, QByteArrayList> lines;
};
Q_DECLARE_METATYPE(Session)

/**
 * Reads cases and named lists of lines. tests/data/sessions.txt describes the format. Ends the program at an unknown
 * key or list, and at a list that nothing uses.
 */
class SessionFile
{
public:
    /** Reads the file \a name of tests/data. */
    explicit SessionFile(const QString& name);

    QVector<Session> sessions;
    QMap<QByteArray, QByteArrayList> lists;

private:
    void readLine(const QByteArray& key, const QByteArray& value);
    QByteArrayList expanded(const QByteArray& line);

    QByteArrayList unused; // lists
    QByteArray list;       // the list that is being read
    QByteArray place;      // of the line that is being read
};

/** Adds a row for each case and protocol of a file of tests/data, for a test with the parameter "session". */
void addSessions(const char* name);
