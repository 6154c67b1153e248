#pragma once

#include <QString>

class QDialog;
class QWidget;

/**
 * Returns content and state of a widget as one string:
 * - selector: "text=data|*text=data", with a star at the current item
 * - spin box: "minimum..maximum:value"
 * - table: "cell,cell|cell,cell", row by row
 * - label: its text
 *
 * Then " off" follows if the widget is disabled, " hidden" if it is hidden, and " {tip}" if it has a tool tip. A cell
 * is its text, "<data>", "x" or "o" for a checked or unchecked box, and "~" if it is disabled. A cell or an item with a
 * tool tip ends with "{tip}".
 */
QString textOfWidget(const QWidget* widget);

/** Returns a line "name: text" for each widget of the form. */
QStringList textOfDialog(const QDialog* dialog);
