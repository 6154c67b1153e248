#pragma once

#include "ControllerState.h"

/**
 * Reads a controller file (JSON) into \a state. A field that the file leaves out keeps its value; a list that it names
 * is replaced as a whole. False with one line, "file: place: reason", in \a error when the file cannot be read, names
 * something unknown or contradicts itself; \a state is unchanged then.
 */
bool readControllerFile(const QString& file, ControllerState* state, QString* error);

/**
 * Writes \a state into a controller file that reads back to the same state, in place of what \a file held before. False
 * with "file: reason" in \a error when it cannot; \a file is unchanged then.
 */
bool saveControllerFile(const QString& file, const ControllerState& state, QString* error);
