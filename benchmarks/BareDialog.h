#pragma once

#include "Workload.h"
#include "ui_synccarddialog.h"

#include <QDialog>

/**
 * The same form without a controller: filled with the values of a workload by straight toolkit calls, in the usual way:
 * a row inserted at a time, an item's properties set when it is in its table, the slots connected.
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

    QStringList modeIds; // ready-made, so that making them counts for neither side
    QStringList modeTexts;
    bool isUserAction = false;
    bool hasChanged = false;
};
