#pragma once

#include "ControllerState.h"

/**
 * Reads a controller file (JSON) into \a state. What the file leaves out keeps the value that \a state had; a list
 * that it names is replaced as a whole. False with one line, "file: place: reason", in \a error when the file cannot
 * be read, names something unknown or contradicts itself; \a state is unchanged then.
 */
bool readControllerFile(const QString& file, ControllerState* state, QString* error);

/** The same with \a value, as ControllerState::toJson() makes it, in place of a file; \a error is "place: reason". */
bool readControllerState(const QJsonValue& value, ControllerState* state, QString* error);
