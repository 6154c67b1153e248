#include "FaultPane.h"

#include "DevelopmentHost.h"

#include <QAction>
#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>

static constexpr int largestCount = 1000;
static constexpr int latencyStep = 100; // milliseconds

namespace {

QWidget* createCount(DevelopmentHost* host)
{
    Faults* faults = &host->faults();
    auto* count = new QSpinBox;
    count->setMaximum(largestCount);
    count->setSpecialValueText("none");
    QObject::connect(count, QOverload<int>::of(&QSpinBox::valueChanged), count,
                     [faults](int n) { faults->failNth(n); });
    const auto countDown = [faults, count] {
        const QSignalBlocker blocker(count);
        count->setValue(faults->commandsToFailure());
    };
    QObject::connect(&host->channel(), &ControllerChannel::executed, count, [count, countDown] {
        if (!count->hasFocus()) // The user may be typing a number.
            countDown();
    });
    QObject::connect(count, &QSpinBox::editingFinished, count, countDown);
    return count;
}

QWidget* createPattern(Faults* faults)
{
    auto* pattern = new QLineEdit(faults->failing().pattern());
    pattern->setPlaceholderText("regular expression, such as output_delay.*ch02");
    QAction* mark =
        pattern->addAction(pattern->style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    mark->setVisible(false);
    QObject::connect(pattern, &QLineEdit::textChanged, pattern, [faults, pattern, mark](const QString& text) {
        const QRegularExpression expression(text);
        if (expression.isValid())
            faults->failMatching(expression);
        mark->setVisible(!expression.isValid());
        mark->setToolTip(QString("Not a valid regular expression (%1). The previous one stays active: %2")
                             .arg(expression.errorString(), faults->failing().pattern()));
        pattern->setAccessibleDescription(expression.isValid() ? QString() : mark->toolTip());
    });
    return pattern;
}

QWidget* createLatency(Faults* faults)
{
    auto* latency = new QSpinBox;
    latency->setMaximum(Faults::maximumLatency);
    latency->setSingleStep(latencyStep);
    latency->setSuffix(" ms");
    latency->setValue(faults->latency());
    QObject::connect(latency, QOverload<int>::of(&QSpinBox::valueChanged), latency,
                     [faults](int ms) { faults->setLatency(ms); });
    return latency;
}

} // namespace

QWidget* createFaultPane(DevelopmentHost* host)
{
    QWidget* count = createCount(host);
    QWidget* pattern = createPattern(&host->faults());
    // In a replay, the recording decides which commands fail.
    count->setEnabled(!host->isReplaying());
    pattern->setEnabled(!host->isReplaying());
    auto* eventLoop = new QCheckBox("&wait in an event loop");
    QObject::connect(eventLoop, &QCheckBox::toggled, host, [host](bool isOn) { host->faults().waitInEventLoop(isOn); });
    auto* pane = new QWidget;
    auto* layout = new QFormLayout(pane);
    layout->setContentsMargins({});
    layout->addRow("Fail the &n-th command from now", count);
    layout->addRow("Fail commands that &match", pattern);
    layout->addRow("Each command &takes longer by", createLatency(&host->faults()));
    layout->addRow(QString(), eventLoop);
    return pane;
}
