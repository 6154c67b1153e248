#pragma once

#include <QString>

/**
 * Calls \a take for each warning or error that Qt prints from now on. Drops debug messages, and the message that the
 * offscreen platform prints for each window of fixed size.
 */
void takeWarnings(void (*take)(const QString& message));
