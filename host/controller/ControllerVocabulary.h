#pragma once

#include "CommandRecord.h"
#include "VersionInfo.h"

#include <QByteArrayList>
#include <QString>

/** Which values a write accepts. */
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

/** A command taken apart. */
struct Request
{
    /** A raw \a command begins with "zorvan2 get" or "zorvan2 set". */
    Request(Operation operation, const QByteArray& command);

    bool isRaw;
    bool isSet;
    const Parameter* parameter = nullptr; // null if no controller has it
    QByteArray name;                      // the parameter with its qualifiers: "synccard source d01"
    QByteArray value;                     // of a write: "video"
};

/** Returns "NAME is unknown; the nearest is ...", with the one of \a known that begins most like \a name. */
QString unknown(const QByteArray& name, const QByteArrayList& known);

/**
 * Returns what is wrong with \a command as a row of a table, such as a misspelt parameter, or an empty string. Such a
 * command may have its operation in front, and a write may lack its value.
 */
QString commandFault(const QByteArray& command);
