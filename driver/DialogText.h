#pragma once

#include <QString>

class QDialog;
class QWidget;

/**
 * Content and state of a widget as one text. A selector reads "*text=data|..." with a star at the current item, a spin
 * box "minimum..maximum:value", a table row by row "cell,cell|...", a label its text; " off" follows when it is
 * disabled, " hidden" when it is hidden, " {tip}" when it has a tool tip. A cell reads as its text, "<data>", "x" or
 * "o" for a checked or unchecked box, and "~" when it is disabled. A cell or an item with a tool tip ends with "{tip}".
 */
QString textOfWidget(const QWidget* widget);

/** A line "name: text" for each widget of the form. */
QStringList textOfDialog(const QDialog* dialog);
