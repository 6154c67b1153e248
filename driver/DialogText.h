#pragma once

#include <QString>

class QDialog;
class QWidget;

/**
 * Content and state of a widget: a selector as "*text=data|..." with the star at the current item, a spin box as
 * "minimum..maximum:value", a table row by row, a label by its text; behind it " off" when disabled and " hidden" when
 * hidden. A cell is its text, "<data>", "x" or "o" for a checked or unchecked box, "~" when disabled.
 */
QString textOfWidget(const QWidget* widget);

/** The form's widgets so, a line each behind the widget's name. */
QStringList textOfDialog(const QDialog* dialog);
