#pragma once

#include "doublespinboxdelegate.h"
#include "synccardlist.h"
#include "ui_synccarddialog.h"

#include <QDialog>
#include <QIcon>
#include <QTimer>

#include <optional>

class BackendVersions;
class IOManager;

/**
 * The modal "Synccard Settings" dialog. Each opening reads the synccard settings from the controller and shows them. If
 * the user has changed anything, OK writes the mode or all direct settings of card 1, then the output. The dialog lives
 * on the GUI thread. The host keeps ownership of channel, versions and parent. Without channel or versions, the dialog
 * behaves as if there were no synccard.
 */
class SynccardDialog : public QDialog, public Ui::synccarddialog
{
    Q_OBJECT

public:
    SynccardDialog(IOManager* cmd, QWidget* p, BackendVersions* bv);
    ~SynccardDialog() override;

public slots:
    /**
     * Fills the dialog from the controller and runs it modally. Returns QDialog::Accepted or QDialog::Rejected. Returns
     * -1 without running the dialog if an earlier call or another step is under way, or if a read that the dialog needs
     * fails.
     */
    int update_and_exec();

private slots:
    // A change by the user marks the dialog as changed. In addition, a new source is written to the controller at once.
    void on_comboBox_output_currentIndexChanged(int idx);
    void on_tableWidget_channels_cellChanged(int row, int column);
    void on_comboBox_modes_currentIndexChanged(const QString& s);
    void on_comboBox_source_currentIndexChanged(int idx);
    void on_doubleSpinBox_frequency_valueChanged(double value);
    void on_spinBox_externalDivisor_valueChanged(int value);

    void accept() override;
    void reject() override;

    /** Shows the values of the sync input. The timer calls this slot once per second while the dialog is open. */
    void poll_input_frequency();

private:
    /** The columns of the card table, from left to right. */
    enum CardColumn { ModelColumn, SerialColumn, CardColumnCount };

    // Construction, opening and switches: SynccardDialog.cpp
    void takeWheelWithFocusAlone();
    bool eventFilter(QObject* watched, QEvent* event) override;
    int update_and_exec_prot_version_0_13();
    bool isSynccardAvailable();
    bool is_config_locked();
    void disableDialog(bool bDisable);
    void disableDetails(bool bDisable);
    void showDetails(bool bShow);
    void updateWidthContols();
    void setEditable(QWidget* control, bool bEnable) const;
    /** Returns true if the controller speaks protocol \a major.\a minor or later. Returns false without versions. */
    bool isProtocolAtLeast(int major, int minor) const;
    bool hasCurrentCard() const;

    // Modes and the legacy path: SynccardDialog_modes.cpp
    int update_and_exec_prot_version_0_8();
    int update_comboBox_modes();
    bool update_legacy_card();
    bool list_modes();
    void add_mode(int number);
    bool read_active_mode(QString* mode);
    bool isDirectSettings(const QString& itemText) const;

    // Direct settings: SynccardDialog_direct.cpp
    void setup_tableWidget_synccards();
    bool update_tableWidget_synccards();
    bool add_card(int number);
    void updateControlsDirectSettings();
    void update_comboBox_source();
    void update_doubleSpinBox_frequency();
    void update_spinBox_externalDivisor();
    void show_internal_frequency();
    void show_external_divisor(const QString& source);
    /** Returns true if the controller speaks protocol 1.9 or 1.10. OK writes no divisor there. */
    bool isProtocolWithoutDivisor() const;

    // Sync output and channels: SynccardDialog_channels.cpp
    void setup_tableWidget_channels();
    void update_comboBox_output();
    int offer_outputs();
    void update_tableWidget_channels();
    double read_delay(int channel);
    bool read_active_during_idle(int channel);
    void show_channel(int row, const QString& maximumDelay, Qt::ItemFlags idleFlags);

    // Sync input: SynccardDialog_syncinput.cpp
    void show_frame_syncinput_if_necessary();
    void update_input_frequency();

    // Applying: SynccardDialog_apply.cpp
    void storeActualDirectSettingsToSynccardList();
    int saveDirectSettings();
    int saveSource(const Synccard& card);
    int saveFrequencyOrDivisor(const Synccard& card);
    void saveChannels(const Synccard& card);
    int setSourceToHub(const QString& source);
    bool setSyncOutputToHub(const QByteArray& source, const QByteArray& output);

    // Leaving: SynccardDialog_leave.cpp
    void storePreviousSettings();
    bool applyMode();
    bool warnOfFailedChange();
    void restorePreviousSettings();
    bool restoreSource(const QString& source);

    // One step at a time: SynccardDialog_steps.cpp
    bool beginOpening();
    int run();
    int exec() override;
    bool beginStep();
    bool beginSource();
    bool beginExit(DialogCode exit);
    void endStep();
    void endExit(DialogCode exit);
    void carryOutWaiting();
    void hideEvent(QHideEvent* event) override;
    void stopInput();

    QTimer* timer = nullptr;
    IOManager* cm = nullptr;
    BackendVersions* beVers = nullptr;
    QWidget* m_parent = nullptr;
    bool bSynccardAvailable = false;
    DoubleSpinboxDelegate doubleSpinboxDelegate;
    bool bUserAction = false; // from an opening's exec() until exec() ends, closing starts or the dialog is hidden
    bool bSomethingChanged = false;
    SynccardList synccards;
    SynccardList previousSettings;
    QString sSentSource; // the source last sent, or the source of a later snapshot
    bool m_is_config_locked = false;
    QIcon m_icon_lock;
    bool bBusy = false;      // a step is under way
    bool bExecuting = false; // exec() has not returned yet
    bool bSourceWaits = false;
    std::optional<DialogCode> waitingExit;
    QTimer waitTimer; // carries out the requests that wait
};
