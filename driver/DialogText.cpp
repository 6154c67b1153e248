#include "DialogText.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QTableWidget>

namespace {

/** Returns "{tip}", or an empty string without a tool tip. */
QString tipText(const QString& tip)
{
    return tip.isEmpty() ? QString() : '{' + tip + '}';
}

QString cellText(const QTableWidgetItem* item)
{
    if (!item)
        return "(none)";
    const QVariant data = item->data(Qt::UserRole);
    const QVariant check = item->data(Qt::CheckStateRole);
    return item->text() + (data.isValid() ? '<' + data.toString() + '>' : QString())
           + (check.isValid() ? (check.toInt() == Qt::Checked ? "x" : "o") : "")
           + (item->flags() & Qt::ItemIsEnabled ? "" : "~") + tipText(item->toolTip());
}

QString rowsText(const QTableWidget* table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells.append(cellText(table->item(row, column)));
        rows.append(cells.join(','));
    }
    return rows.join('|');
}

QString itemsText(const QComboBox* box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items.append((i == box->currentIndex() ? "*" : "") + box->itemText(i) + '=' + box->itemData(i).toString()
                     + tipText(box->itemData(i, Qt::ToolTipRole).toString()));
    return items.join('|');
}

QString contentText(const QWidget* widget)
{
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return itemsText(box);
    if (qobject_cast<const QAbstractSpinBox*>(widget)) {
        const auto text = [widget](const char* property) { return widget->property(property).toString(); };
        return text("minimum") + ".." + text("maximum") + ':' + text("value");
    }
    if (const auto* table = qobject_cast<const QTableWidget*>(widget))
        return rowsText(table);
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QString();
}

} // namespace

QString textOfWidget(const QWidget* widget)
{
    if (!widget)
        return "no such widget";
    return contentText(widget) + (widget->isEnabled() ? "" : " off") + (widget->isHidden() ? " hidden" : "")
           + (widget->toolTip().isEmpty() ? "" : ' ' + tipText(widget->toolTip()));
}

QStringList textOfDialog(const QDialog* dialog)
{
    QStringList lines;
    const QRegularExpression formName("^(comboBox|doubleSpinBox|spinBox|tableWidget|label|frame|pushButton)_");
    const QList<QWidget*> widgets = dialog->findChildren<QWidget*>(formName);
    for (const QWidget* widget : widgets)
        lines.append(widget->objectName() + ": " + textOfWidget(widget));
    return lines;
}
