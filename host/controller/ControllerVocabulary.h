#pragma once

#include "CommandRecord.h"
#include "VersionInfo.h"

#include <QByteArrayList>
#include <QString>

/** The values that a write accepts. */
enum class Rule { ReadOnly, Mode, Source, Frequency, Divisor, Output, Delay, Flag };

/** A parameter that controllers have. */
struct Parameter
{
    /** Name and qualifiers. NN stands for a number, WORD for any word. */
    const char* form;
    /** The first protocol that has the parameter, whatever its patch number. */
    int major;
    int minor;
    Rule rule;

    bool isKnownTo(const VersionInfo& protocol) const { return protocol >= VersionInfo(major, minor, -1); }
};

/** A command and its parts. */
struct Request
{
    /** A raw \a command starts with "zorvan2 get" or "zorvan2 set". */
    Request(Operation operation, const QByteArray& command);

    bool isRaw;
    bool isSet;
    const Parameter* parameter = nullptr; // null if no controller has it
    QByteArray name;                      // the parameter with its qualifiers: "synccard source d01"
    QByteArray value;                     // of a write: "video"
};

/** Returns the error message that \a name is unknown. It suggests the \a known name with the longest common start. */
QString unknown(const QByteArray& name, const QByteArrayList& known);

/**
 * Returns an error message if \a command cannot be a row of a table, such as a misspelt parameter. Otherwise returns an
 * empty string. The command may start with its operation, and a write may lack its value.
 */
QString commandFault(const QByteArray& command);
