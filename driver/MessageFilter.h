#pragma once

#include <QString>

/**
 * From now on \a take gets each warning of Qt, and each worse message. Qt's debug messages are dropped, and so is what
 * the offscreen platform says of each window of fixed size.
 */
void takeWarnings(void (*take)(const QString& message));
