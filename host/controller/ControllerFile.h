#pragma once

#include "ControllerState.h"

/**
 * Reads a controller file (JSON) into \a state. A field that the file leaves out keeps its value; a list that it names
 * is replaced as a whole. False with one line, "file: place: reason", in \a error when the file cannot be read, names
 * something unknown or contradicts itself; \a state is unchanged then.
 */
bool readControllerFile(const QString& file, ControllerState* state, QString* error);
