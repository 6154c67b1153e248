#include "SynccardDialog.h"

#include "BackendVersions.h"
#include "IOManager.h"
#include "answers.h"
#include "reporterror.h"

#include <QPointer>

namespace {

constexpr int pollIntervalMilliseconds = 1000;

} // namespace

SynccardDialog::SynccardDialog(IOManager* cmd, QWidget* p, BackendVersions* bv)
    : QDialog(p), cm(cmd), beVers(bv), m_parent(p), doubleSpinboxDelegate(nullptr)
{
    setupUi(this);
    m_icon_lock.addFile(QLatin1String(":/lock.png"));
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    // These labels show texts from the controller, which may look like markup.
    label_inputSource->setTextFormat(Qt::PlainText);
    label_inputFrequency->setTextFormat(Qt::PlainText);
    timer = new QTimer;
    timer->setInterval(pollIntervalMilliseconds);
    connect(timer, &QTimer::timeout, this, &SynccardDialog::poll_input_frequency);
    waitTimer.setSingleShot(true);
    connect(&waitTimer, &QTimer::timeout, this, &SynccardDialog::carryOutWaiting);
    takeWheelWithFocusAlone();
    setup_tableWidget_synccards();
    setup_tableWidget_channels();
    showDetails(false);
}

SynccardDialog::~SynccardDialog()
{
    delete timer;
}

/**
 * Lets selectors and spin boxes react to the wheel only while they have the focus. Otherwise a wheel that is meant for
 * the window would change the control under the pointer.
 */
void SynccardDialog::takeWheelWithFocusAlone()
{
    const QList<QWidget*> controls = {comboBox_modes, comboBox_source, comboBox_output, doubleSpinBox_frequency,
                                      spinBox_externalDivisor};
    for (QWidget* control : controls) {
        control->setFocusPolicy(Qt::StrongFocus); // WheelFocus gives the focus before the filter sees the wheel
        control->installEventFilter(this);
    }
}

bool SynccardDialog::eventFilter(QObject* watched, QEvent* event)
{
    const auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || !control || control->hasFocus())
        return QDialog::eventFilter(watched, event);
    event->ignore();
    return true;
}

int SynccardDialog::update_and_exec()
{
    if (!beginOpening())
        return -1;
    m_is_config_locked = is_config_locked();
    const QIcon icon = m_parent ? m_parent->windowIcon() : QIcon();
    setWindowIcon(m_is_config_locked ? m_icon_lock : icon);
    bSynccardAvailable = isSynccardAvailable();
    disableDialog(!bSynccardAvailable);
    if (!bSynccardAvailable)
        return run();
    bSomethingChanged = false;
    show_frame_syncinput_if_necessary();
    const QPointer<SynccardDialog> self(this);
    const int result =
        isProtocolAtLeast(0, 13) ? update_and_exec_prot_version_0_13() : update_and_exec_prot_version_0_8();
    if (self)
        endStep(); // After a failed read the opening is still under way.
    return result;
}

int SynccardDialog::update_and_exec_prot_version_0_13()
{
    if (!update_tableWidget_synccards())
        return -1;
    const int modesResult = update_comboBox_modes();
    if (modesResult != 0)
        return modesResult;
    updateControlsDirectSettings();
    storePreviousSettings();
    updateWidthContols();
    return run();
}

bool SynccardDialog::isSynccardAvailable()
{
    if (!cm || !isProtocolAtLeast(0, 8))
        return false;
    TextAnswer answer;
    if (cm->getParameter(answer.buffer(), "synccard available") != 0) {
        reportError(cm, QStringLiteral("Error: Unable to get Synccard availability"));
        return false;
    }
    return answer.isYes();
}

bool SynccardDialog::is_config_locked()
{
    if (!cm || !isProtocolAtLeast(1, 9))
        return false;
    TextAnswer answer;
    if (cm->getParameter(answer.buffer(), "config is_changeable") != 0)
        return false;
    return answer.text() == QLatin1String("no");
}

/** Enables or disables an editing control. If the configuration is locked, the control stays disabled. */
void SynccardDialog::setEditable(QWidget* control, bool bEnable) const
{
    control->setEnabled(bEnable && !m_is_config_locked);
}

void SynccardDialog::disableDialog(bool bDisable)
{
    label_error->setText(bDisable ? tr("<b><font color=red>No Synccard available!</font></b>") : QString());
    label_error->setVisible(bDisable);
    tableWidget_synccards->setDisabled(bDisable);
    label_syncInput->setDisabled(bDisable);
    label_inputSource1->setDisabled(bDisable);
    label_inputSource->setDisabled(bDisable);
    label_inputFrequency1->setDisabled(bDisable);
    label_inputFrequency->setDisabled(bDisable);
    label_supportedSynccardModes->setDisabled(bDisable);
    setEditable(comboBox_modes, !bDisable);
    setEditable(pushButton_Ok, !bDisable);
    disableDetails(bDisable);
}

void SynccardDialog::disableDetails(bool bDisable)
{
    label_source->setDisabled(bDisable);
    label_output->setDisabled(bDisable);
    setEditable(comboBox_source, !bDisable);
    setEditable(comboBox_output, !bDisable);
    setEditable(doubleSpinBox_frequency, !bDisable);
    setEditable(spinBox_externalDivisor, !bDisable);
    setEditable(tableWidget_channels, !bDisable);
    label_frequency->setDisabled(bDisable);
    label_externalDivisor->setDisabled(bDisable);
}

void SynccardDialog::showDetails(bool bShow)
{
    label_source->setVisible(bShow);
    comboBox_source->setVisible(bShow);
    label_output->setVisible(bShow);
    comboBox_output->setVisible(bShow);
    label_frequency->setVisible(bShow);
    doubleSpinBox_frequency->setVisible(bShow);
    label_externalDivisor->setVisible(bShow);
    spinBox_externalDivisor->setVisible(bShow);
    tableWidget_channels->setVisible(bShow);
}

/** Makes the spin boxes at least as wide as the source selector. */
void SynccardDialog::updateWidthContols()
{
    const int width = comboBox_source->width();
    doubleSpinBox_frequency->setMinimumWidth(width);
    spinBox_externalDivisor->setMinimumWidth(width);
}

bool SynccardDialog::isProtocolAtLeast(int major, int minor) const
{
    return beVers && beVers->protocol() >= VersionInfo(major, minor, -1);
}

bool SynccardDialog::hasCurrentCard() const
{
    return tableWidget_synccards->currentRow() >= 0;
}
