#pragma once

#include "ControllerState.h"

/**
 * Reads a controller file (JSON) into \a state. A field that the file leaves out keeps its value; a list that it names
 * is replaced as a whole. When the file cannot be read, names something unknown or contradicts itself, it returns one
 * line, "file: place: reason", and \a state is unchanged; else an empty text.
 */
QString readControllerFile(const QString& file, ControllerState* state);

/**
 * Writes \a state into a controller file that reads back to the same state, in place of what \a file held before. When
 * it cannot, it returns "file: reason", and \a file is unchanged; else an empty text.
 */
QString saveControllerFile(const QString& file, const ControllerState& state);
