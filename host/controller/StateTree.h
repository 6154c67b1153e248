#pragma once

#include "StateDescription.h"

/** The controller's state, or a part of it, as a tree: a record has its fields, a list its entries, counted from 1. */
struct StateNode
{
    QString name;
    /** From the root on, such as "cards 1, channels 4, delay". */
    QString place;
    FieldRule rule;
    QJsonValue value = QJsonValue::Undefined; // of a field
    bool isList = false;
    QVector<StateNode> children = {};

    bool isField() const { return !value.isUndefined(); }
    /** What a controller file says of it. */
    QJsonValue toJson() const;
    /** A line "place: value" for each field. */
    QStringList toLines() const;
};

StateNode toTree(ControllerState state);

/**
 * Reads \a json into \a state. A field that it leaves out keeps its value; a list that it names is replaced as a whole.
 * When it names something unknown or contradicts itself, this returns "place: reason", and \a state is unchanged; else
 * an empty text.
 */
QString readState(const QJsonValue& json, ControllerState* state);

/** Changes the field at \a place, which a tree names, to what somebody \a entered. Returns and refuses as above. */
QString editField(const QString& place, const QString& entered, ControllerState* state);
