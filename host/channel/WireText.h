#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Commands and answers are Latin-1. Recordings and controller files are UTF-8. They write a line break as \n, a
// carriage return as \r, a backslash as \\, an arrow as \->, and any other control character as its code, such as \x09.

/** Returns \a text as a file writes it. */
QString escaped(const QByteArray& text);

/** Returns \a character as its code, such as \x20. */
QString escapeOf(QChar character);

/** Returns the text that \a written stands for. \a written must not have a fault. */
QByteArray unescaped(const QString& written);

/** Returns an error message if \a line is not Latin-1 or has an unknown escape, otherwise an empty string. */
QString textFault(const QString& line);

/** Splits a file's \a content into lines. The last line is empty unless the file was cut off. */
QStringList linesOf(const QByteArray& content);
