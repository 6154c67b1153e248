#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The texts of commands and answers are Latin-1. Recordings and controller files are UTF-8, one line per text. A line
// break is written \n, a carriage return \r, a backslash \\, an arrow \->, any other control character by its code, as
// in \x09.

/** Returns \a text as it stands in a file. */
QString escaped(const QByteArray& text);

/** Returns \a character as its code, such as \x20. */
QString escapeOf(QChar character);

/** Returns the text that \a written stands for. Only for a text without a fault. */
QByteArray unescaped(const QString& written);

/** Returns what is wrong with the characters of \a line, or an empty string if any line of a file may contain them. */
QString characterFault(const QString& line);

/** Returns what is wrong with the texts in \a line: not Latin-1, or an unknown escape. Else an empty string. */
QString textFault(const QString& line);

/** Splits a file's \a content into lines. The last one is empty unless the file was cut off. */
QStringList linesOf(const QByteArray& content);
