#include "MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>

static constexpr int margin = 24;

MainWindow::MainWindow()
{
    setWindowTitle(tr("Development Host"));
    setWindowIcon(style()->standardIcon(QStyle::SP_ComputerIcon));
    // A modal dialog blocks only windows of the same group: the workbench, which has no parent, stays usable.
    setAttribute(Qt::WA_GroupLeader);
    auto* hint = new QLabel(tr("The module's entry is in the menu Hardware.\n"
                               "The workbench shows what it asks, and what the controller is."));
    hint->setMargin(margin);
    setCentralWidget(hint);
    QMenu* menu = menuBar()->addMenu(tr("Ho&st"));
    measurement = menu->addAction(tr("&Measurement running"), this, &MainWindow::measurementSwitched);
    measurement->setObjectName("measurement");
    measurement->setCheckable(true);
    measurement->setShortcut(QKeySequence(tr("Ctrl+M")));
    menu->addAction(tr("&Workbench"), this, &MainWindow::workbenchWanted, QKeySequence(tr("Ctrl+B")));
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(tr("Ctrl+Q")));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!QApplication::activeModalWidget());
    if (event->isAccepted())
        QApplication::quit();
}
