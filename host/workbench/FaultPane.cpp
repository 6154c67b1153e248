#include "FaultPane.h"

#include "DevelopmentHost.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QWheelEvent>

static constexpr int largestCount = 1000;
static constexpr int latencyStep = 100; // milliseconds

namespace {

/** A spin box that takes a typed number when it is whole, and that the wheel changes only while it has the focus. */
class NumberBox : public QSpinBox
{
public:
    explicit NumberBox(int maximum)
    {
        setMaximum(maximum);
        setKeyboardTracking(false);
        setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus
    }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus())
            QSpinBox::wheelEvent(event);
        else
            event->ignore(); // What lies below may scroll.
    }
};

} // namespace

FaultPane::FaultPane(DevelopmentHost* host) : faults(host->faults())
{
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins({});
    layout->addRow(tr("Fail the &n-th command from now"), createCount(host));
    layout->addRow(tr("Fail commands that &match"), createPattern(host));
    layout->addRow(tr("Each command &takes longer by"), createLatency());
    auto* eventLoop = new QCheckBox(tr("&wait in an event loop"));
    connect(eventLoop, &QCheckBox::toggled, this, [this](bool isOn) { faults.waitInEventLoop(isOn); });
    layout->addRow(QString(), eventLoop);
    connect(&faults, &Faults::waiting, this, [](bool isBegin) {
        isBegin ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
    });
}

QWidget* FaultPane::createCount(DevelopmentHost* host)
{
    auto* count = new NumberBox(largestCount);
    count->setSpecialValueText(tr("none"));
    count->setEnabled(!host->isReplaying());
    connect(count, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int n) { faults.failNth(n); });
    connect(&host->channel(), &ControllerChannel::executed, count, [this, count] {
        const QSignalBlocker blocker(count);
        // Only if it differs: setValue() would discard a number that somebody is typing.
        if (count->value() != faults.commandsToFailure())
            count->setValue(faults.commandsToFailure());
    });
    return count;
}

QWidget* FaultPane::createPattern(DevelopmentHost* host)
{
    auto* pattern = new QLineEdit(faults.failing().pattern());
    pattern->setPlaceholderText(tr("regular expression, such as output_delay.*ch02"));
    pattern->setEnabled(!host->isReplaying());
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    QAction* mark = pattern->addAction(warning, QLineEdit::TrailingPosition);
    mark->setVisible(false);
    connect(pattern, &QLineEdit::textChanged, this, [this, pattern, mark](const QString& text) {
        const QRegularExpression expression(text);
        const QString error = tr("No regular expression, the former one stays: %1").arg(expression.errorString());
        const QString reason = expression.isValid() ? QString() : error;
        if (reason == mark->toolTip())
            return;
        mark->setToolTip(reason);
        mark->setVisible(!reason.isEmpty());
        pattern->setAccessibleDescription(reason);
        QFont font = pattern->font();
        font.setBold(!reason.isEmpty());
        pattern->setFont(font);
        emit said(reason);
    });
    connect(pattern, &QLineEdit::editingFinished, this, [this, pattern] {
        const QRegularExpression expression(pattern->text());
        if (expression.isValid())
            faults.failMatching(expression);
    });
    return pattern;
}

QWidget* FaultPane::createLatency()
{
    auto* latency = new NumberBox(Faults::maximumLatency);
    latency->setSingleStep(latencyStep);
    latency->setSuffix(tr(" ms"));
    latency->setValue(faults.latency());
    connect(latency, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int ms) { faults.setLatency(ms); });
    return latency;
}
