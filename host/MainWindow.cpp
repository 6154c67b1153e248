#include "MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QWhatsThis>

static constexpr int helpOrder = 10000; // behind every module's menu
static constexpr int columns = 45;      // of text in a row, in average characters

MainWindow::MainWindow(std::function<bool()> isBusy)
    : isBusy(std::move(isBusy)), notice(new QLabel), recordingState(new QLabel),
      measurementState(new QLabel(tr("Measurement running")))
{
    setWindowIcon(style()->standardIcon(QStyle::SP_ComputerIcon));
    // A modal dialog blocks only windows of the same group: the workbench, which has no parent, stays usable.
    setAttribute(Qt::WA_GroupLeader);
    createMenus();
    createRows();
    statusBar()->addPermanentWidget(measurementState);
    statusBar()->addPermanentWidget(recordingState);
    measurementState->hide();
    connect(measurement, &QAction::toggled, measurementState, &QWidget::setVisible);
}

void MainWindow::createMenus()
{
    QMenu* menu = menuBar()->addMenu(tr("Ho&st"));
    const auto add = [&](const QString& text, const QString& shortcut, const QString& tip) {
        QAction* action = menu->addAction(text);
        action->setShortcut(QKeySequence(shortcut));
        action->setShortcutContext(Qt::ApplicationShortcut); // in the workbench as well
        action->setStatusTip(tip);
        return action;
    };
    measurement =
        add(tr("&Measurement running"), tr("Ctrl+M"), tr("Disables the entries of modules that must not run then"));
    measurement->setObjectName("measurement");
    measurement->setCheckable(true);
    connect(measurement, &QAction::triggered, this, &MainWindow::measurementSwitched);
    connect(add(tr("&Workbench"), tr("Ctrl+B"), tr("Brings the workbench to the front")), &QAction::triggered, this,
            &MainWindow::workbenchWanted);
    menu->addSeparator();
    connect(add(tr("&Quit"), tr("Ctrl+Q"), tr("Ends the host")), &QAction::triggered, this, &QWidget::close);
    menu = menuBar()->addMenu(tr("&Help"));
    help = menu->menuAction();
    help->setProperty("orderNumber", helpOrder);
    menu->addAction(QWhatsThis::createAction(this));
    menu->addAction(tr("&About"), this, &MainWindow::aboutWanted);
}

void MainWindow::addMenu(QMenu* menu)
{
    menuBar()->insertMenu(help, menu);
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

void MainWindow::describe(const HostFacts& facts)
{
    const QStringList texts = {facts.controller, facts.protocol, facts.module, facts.recording};
    for (int i = 0; i < rows.size(); ++i)
        rows.at(i)->setText(texts.at(i));
    recordingState->setText(facts.recordingBrief);
    setWindowTitle(tr("%1 - Development Host").arg(facts.brief));
    emit described(facts.brief);
}

void MainWindow::say(const QString& text)
{
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!isBusy());
    if (event->isAccepted())
        QApplication::quit();
}
