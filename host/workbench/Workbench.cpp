#include "Workbench.h"

#include "CommandPane.h"
#include "ControllerPane.h"
#include "DevelopmentHost.h"
#include "ReportPane.h"
#include "StepCounter.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

static constexpr QSize initialSize(960, 560);

/** How far a replay is, and in \a message how it differed. */
static QLabel* createProgress(DevelopmentHost* host, QLabel* message)
{
    auto* progress = new QLabel;
    progress->setTextFormat(Qt::PlainText);
    QObject::connect(&host->replay(), &Replay::moved, progress, [host, progress, message] {
        progress->setText(host->replay().progress());
        message->setText(host->replay().problem());
    });
    return progress;
}

Workbench::Workbench(DevelopmentHost* host)
{
    connect(&host->window(), &MainWindow::described, this,
            [this](const QString& brief) { setWindowTitle(tr("%1 - Workbench").arg(brief)); });
    setWindowIcon(host->window().windowIcon());
    resize(initialSize);
    auto* message = new QLabel;
    message->setObjectName("message");
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    connect(&host->recorder(), &Recorder::ended, message, &QLabel::setText);
    connect(&host->channel(), &ControllerChannel::executed, message, [message](const CommandRecord& record) {
        if (traitsOf(record.text()).beginsOpening)
            message->clear();
    });
    auto* commands = new CommandPane(host);
    connect(commands, &CommandPane::said, message, &QLabel::setText);
    auto* tabs = new QTabWidget;
    tabs->addTab(commands, tr("&Commands"));
    auto* reports = new ReportPane(host);
    const int reportsTab = tabs->addTab(reports, tr("&Reports"));
    connect(reports, &ReportPane::counted, tabs, [tabs, reportsTab](int number) {
        tabs->setTabText(reportsTab, number == 0 ? tr("&Reports") : tr("&Reports (%1)").arg(number));
    });
    if (!host->isReplaying()) {
        auto* controller = new ControllerPane(host);
        tabs->addTab(controller, tr("C&ontroller"));
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(message);
    if (host->isReplaying())
        layout->addWidget(createProgress(host, message));
    auto* step = new QLabel;
    auto* counter = new StepCounter(host, this);
    connect(counter, &StepCounter::counted, step, &QLabel::setText);
    connect(counter, &StepCounter::counted, &host->window(), &MainWindow::showStep);
    layout->addWidget(step);
    connect(&host->window(), &MainWindow::workbenchWanted, this, [this] {
        show();
        raise();
        activateWindow();
    });
}
