#include "MainWindow.h"

#include "ControllerState.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>

namespace {

QWidget* createDescription(const ControllerState& state)
{
    auto* description = new QWidget;
    auto* layout = new QFormLayout(description);
    const auto addRow = [layout](const QString& caption, const QString& text) {
        auto* value = new QLabel(text);
        value->setTextFormat(Qt::PlainText);
        layout->addRow(caption, value);
    };
    addRow(MainWindow::tr("Protocol:"), state.protocol.toString());
    addRow(MainWindow::tr("Controller model:"), state.model);
    addRow(MainWindow::tr("Synccards:"), QString::number(state.cards.size()));
    addRow(MainWindow::tr("Predefined modes:"), QString::number(state.modes.size()));
    addRow(MainWindow::tr("Sync input:"), state.input.isEmpty() ? MainWindow::tr("none") : state.input);
    addRow(MainWindow::tr("Configuration:"), state.locked ? MainWindow::tr("locked") : MainWindow::tr("changeable"));
    return description;
}

} // namespace

MainWindow::MainWindow(const ControllerState& state) : reportLabel(new QLabel)
{
    setWindowTitle(tr("Development Host"));
    setWindowIcon(style()->standardIcon(QStyle::SP_ComputerIcon));
    setMinimumWidth(420);
    setCentralWidget(createDescription(state));
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    reportLabel->setObjectName("newestReport");
    reportLabel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(reportLabel, 1);
}

void MainWindow::showReport(const QString& /*category*/, const QString& /*systemTag*/, int /*flag*/,
                            const QString& message)
{
    reportCount = message == newestReport ? reportCount + 1 : 1;
    newestReport = message;
    reportLabel->setText(reportCount > 1 ? tr("%1 (%2 times)").arg(message, QString::number(reportCount)) : message);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!QApplication::activeModalWidget());
}
