#include "MainWindow.h"

#include "DevelopmentHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QStatusBar>
#include <QStyle>

static constexpr int columns = 45; // of text in a row, in average characters

MainWindow::MainWindow(DevelopmentHost* host)
    : host(host), notice(new QLabel), step(new QLabel), recordingState(new QLabel),
      measurementState(new QLabel(tr("Measurement running")))
{
    setWindowIcon(style()->standardIcon(QStyle::SP_ComputerIcon));
    // A modal dialog blocks only windows of the same group: the workbench, which has no parent, stays usable.
    setAttribute(Qt::WA_GroupLeader);
    createRows();
    createHostMenu();
    createRecordingMenu();
    if (!host->isReplaying())
        createControllerMenu();
    createHelpMenu();
    statusBar()->addWidget(step);
    statusBar()->addPermanentWidget(measurementState);
    statusBar()->addPermanentWidget(recordingState);
    measurementState->hide();
    followHost();
}

void MainWindow::createRows()
{
    auto* layout = new QFormLayout;
    layout->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (const QString& name : {tr("Controller"), tr("Protocol"), tr("Module"), tr("Recording")}) {
        auto* row = new QLabel;
        row->setTextFormat(Qt::PlainText);
        row->setTextInteractionFlags(Qt::TextSelectableByMouse);
        row->setWordWrap(true);
        row->setMinimumWidth(columns * fontMetrics().averageCharWidth());
        layout->addRow(name + ':', row);
        rows.append(row);
    }
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    layout->addRow(notice);
    auto* center = new QWidget;
    center->setLayout(layout);
    center->setWhatsThis(
        tr("What this host is: the controller it simulates, the module it has loaded, and the recording "
           "that it writes or answers from"));
    setCentralWidget(center);
}

/** Describes the host again whenever the controller or a recording has changed. */
void MainWindow::followHost()
{
    describing.setSingleShot(true);
    connect(&describing, &QTimer::timeout, this, &MainWindow::describe);
    const auto describeSoon = [this] { describing.start(); };
    connect(&host->controller(), &SimulatedController::changed, this, describeSoon);
    connect(&host->replay(), &Replay::moved, this, describeSoon);
    connect(&host->recorder(), &Recorder::started, this, describeSoon);
    connect(&host->recorder(), &Recorder::ended, this, describeSoon);
    connect(&host->recorder(), &Recorder::ended, this, &MainWindow::say);
    connect(&host->channel(), &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        if (traitsOf(record.text()).beginsOpening)
            say({});
    });
}

void MainWindow::describe()
{
    if (!host->errorString().isEmpty())
        return;
    QStringList recordings;
    if (host->recorder().isRecording())
        recordings.append(tr("recording %1").arg(QFileInfo(host->recorder().fileName()).fileName()));
    if (host->isReplaying())
        recordings.append(tr("replaying %1").arg(QFileInfo(host->replay().fileName()).fileName()));
    recordingState->setText(recordings.join(", "));
    const QString protocol = host->versions().protocol().toString();
    const QStringList brief = recordings
                              + QStringList{host->controllerName(), tr("protocol %1").arg(protocol),
                                            tr("process %1").arg(QCoreApplication::applicationPid())};
    setWindowTitle(tr("%1 - Development Host").arg(brief.join(", ")));
    if (host->isReplaying())
        recordings.append(host->replay().progress());
    const QStringList texts = {host->controllerText(), protocol + ", " + host->versions().hubModel(),
                               host->moduleText() + ", " + host->moduleFile(),
                               recordings.isEmpty() ? tr("none") : recordings.join(", ")};
    for (int i = 0; i < rows.size(); ++i)
        rows.at(i)->setText(texts.at(i));
    growToFit();
    emit described(brief.join(", "));
}

void MainWindow::say(const QString& text)
{
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
    growToFit();
}

/** The window's layout does not ask for the height of texts that are wrapped. */
void MainWindow::growToFit()
{
    const QWidget* center = centralWidget();
    const int missing = center->layout()->totalHeightForWidth(center->width()) - center->height();
    if (isVisible() && missing > 0)
        resize(width(), height() + missing);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    say(host->whyBusy());
    event->setAccepted(host->whyBusy().isEmpty());
    if (event->isAccepted())
        QApplication::quit();
}
