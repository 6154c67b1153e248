#pragma once

#include "Workload.h"
#include "ui_synccarddialog.h"

#include <QDialog>

/**
 * The module's form without a controller: fill() shows the values of a workload by direct toolkit calls. It works the
 * usual way: it inserts one row at a time, sets an item's properties once the item is in its table, and leaves the
 * slots connected.
 */
class BareDialog : public QDialog, public Ui::synccarddialog
{
    Q_OBJECT

public:
    explicit BareDialog(QWidget* parent);

    void fill(const Workload& workload);

private slots:
    void on_comboBox_output_currentIndexChanged(int /*index*/) { mark(); }
    void on_tableWidget_channels_cellChanged(int /*row*/, int /*column*/) { mark(); }
    void on_comboBox_modes_currentIndexChanged(const QString& text);
    void on_comboBox_source_currentIndexChanged(int /*index*/) { mark(); }
    void on_doubleSpinBox_frequency_valueChanged(double /*value*/) { mark(); }
    void on_spinBox_externalDivisor_valueChanged(int /*value*/) { mark(); }

private:
    void setUpTable(QTableWidget* table, const QStringList& headers);
    void mark() { hasChanged = isUserAction; }
    void showDetails(bool isShown);
    void enableAll();
    void fillCards(int cards);
    void fillModes(int modes);
    void fillSettings();
    void fillChannels(int channels);

    // Made in advance, so that the time of an opening does not include making them.
    bool isUserAction = false;
    bool hasChanged = false;
};
