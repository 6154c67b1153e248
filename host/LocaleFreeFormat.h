#pragma once

#include <QByteArray>

#include <cstdarg>

/**
 * The text that printf makes of \a format and \a arguments, with a decimal point whatever the user's locale:
 * QApplication sets that for the whole program.
 */
QByteArray formatLocaleFree(const char* format, va_list arguments) Q_ATTRIBUTE_FORMAT_PRINTF(1, 0);
