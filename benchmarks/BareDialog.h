#pragma once

#include "WorkloadChannel.h"
#include "ui_synccarddialog.h"

#include <QDialog>

/**
 * The module's form without a controller: shows the values of a workload by direct toolkit calls. It works the usual
 * way: it inserts one row at a time, sets an item's properties after adding the item to its table, and leaves the slots
 * connected.
 */
class BareDialog : public QDialog, public Ui::synccarddialog
{
    Q_OBJECT

public:
    BareDialog(QWidget* parent, const Workload& workload);

private slots:
    /** Fills the widgets, then opens the dialog. The module's dialog has a slot of the same name. */
    int update_and_exec();
    void on_comboBox_modes_currentIndexChanged(const QString& text) { showDetails(text == "direct settings"); }
    void on_tableWidget_channels_cellChanged(int /*row*/, int /*column*/) {}

private:
    void setUpTable(QTableWidget* table, const QStringList& headers);
    void showDetails(bool isShown);
    void fillCards();
    void fillControls();
    void fillChannels();

    const Workload workload;
};
