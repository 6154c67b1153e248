#pragma once

#include <QByteArrayList>
#include <QMap>
#include <QMetaType>
#include <QSet>
#include <QStringList>
#include <QVector>

/** A line of a case: its text, and its number in the file. */
struct SessionLine
{
    QByteArray text;
    int number;
};
using SessionLines = QVector<SessionLine>;

/** A case of a session file: its lines by their key, in order. */
struct Session
{
    /** The text of the one line with this key. */
    QByteArray text(const QByteArray& key, const QByteArray& otherwise = QByteArray()) const;
    /** "FILE:LINE: CASE: what", in the line \a line, or by default in that of the case. */
    QString problem(const QString& what, int line = 0) const;

    QByteArray file;
    QByteArray name;
    int number = 0;
    QMap<QByteArray, SessionLines> lines;
};
Q_DECLARE_METATYPE(Session)

/** Reads cases, and named lists of lines; tests/data/sessions.txt describes the format. */
class SessionFile
{
public:
    /** \a keys are those that a line of a case may begin with. */
    SessionFile(const QString& path, const QByteArrayList& keys);

    QVector<Session> sessions;
    QMap<QByteArray, QByteArrayList> lists;
    QSet<QByteArray> called; // names of the lists that cases and other lists stand for
    QStringList mistakes;    // "FILE:LINE: what is wrong"

private:
    void readLine(const QByteArray& key, const QByteArray& value, const QByteArrayList& keys);
    void readLineOfCase(const QByteArray& key, const QByteArray& value);
    QByteArrayList expanded(const QByteArray& text);
    QByteArrayList listed(const QByteArray& call);
    void demand(bool condition, const QString& otherwise);

    QByteArray file;
    QByteArray list;
    int number = 0;
};

/** One row for each case and protocol of a file of tests/data, for a test with the parameter "session". */
void addSessions(const char* name, const QByteArrayList& keys);
