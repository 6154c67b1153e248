#pragma once

#include "ControllerTable.h"

#include <QSet>
#include <QStringList>

/**
 * Reads the lines of a controller file into a table, one by one. docs/workbench.md describes the format. A line
 * replaces an earlier row of the table, but the same command must not appear twice.
 */
class ControllerText
{
public:
    /** \a files are the file that is read and those that led to it by "from", last first. Empty for pasted lines. */
    explicit ControllerText(ControllerTable* table, const QStringList& files = {}) : table(table), files(files) {}

    /** Reads \a line. Returns an error message, or an empty string on success. */
    QString read(const QString& line);

private:
    void readHeader(const QString& key, const QString& value);
    void readBase(const QString& name);
    void readAnswer(const QString& command, const QString& answer);
    void expand(const QString& command, const QString& answer);
    void demand(bool condition, const QString& otherwise);
    void demandFirst(const QByteArray& left);

    ControllerTable* table;
    QStringList files;
    QSet<QByteArray> seen; // commands, and keys of the header
    bool hasAnswers = false;
    QString fault; // the first one in the line
};

/** Reads "1.23" or "1.23.0" into \a protocol. Returns an error message, or an empty string on success. */
QString readProtocol(const QString& text, VersionInfo* protocol);

/**
 * Changes \a table by \a lines. Returns an error message such as "line 2: fault", or an empty string on success. An
 * error leaves \a table unchanged.
 */
QString changeTable(ControllerTable* table, const QString& lines);

/** Returns \a text as a controller file writes it. */
QString written(const QByteArray& text);
/** Returns \a table as a controller file, which reads back to the same table. */
QByteArray written(const ControllerTable& table);
