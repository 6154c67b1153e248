#pragma once

#include "ControllerState.h"

#include <QStringList>

/** One access to a parameter: the controller's state and what the qualifiers of the command name in it. */
struct ParameterAccess
{
    ControllerState* state;
    CardState* card = nullptr;
    ChannelState* channel = nullptr;
    const ModeState* mode = nullptr;
    QStringList words = {};
};

/** The first protocol version, of any patch number, that knows a parameter. */
struct ProtocolGate
{
    int major;
    int minor;
};

/** A parameter of the controller: its name and how it is read and, if it can be, written. */
struct Parameter
{
    const char* name;
    /** A letter a qualifier: d card, c channel of that card, t mode, w any word. */
    const char* qualifiers;
    ProtocolGate since;
    /** The value as text; a null text when there is none. */
    QString (*get)(const ParameterAccess&);
    /** False, and nothing changed, when the value lies outside the limits. Null for a parameter that is read only. */
    bool (*set)(ParameterAccess&, const QString& value);
};

/**
 * The parameter that \a words (name and qualifiers, such as "synccard", "source", "d01") name at the state's
 * protocol, with its qualifiers resolved into \a access; null when there is none.
 */
const Parameter* findParameter(const QStringList& words, ParameterAccess* access);
