#include "ControllerFile.h"
#include "DevelopmentHost.h"

#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QWhatsThis>

static constexpr int helpOrder = 10000; // behind every module's menu
static constexpr char fileFilter[] = QT_TRANSLATE_NOOP("MainWindow", "Controllers and recordings (*.txt)");

/** Adds an entry to \a menu that calls \a slot. */
template <typename Slot>
static QAction* add(QMenu* menu, const QString& text, const QString& tip, Slot slot)
{
    QAction* action = menu->addAction(text, menu, slot);
    action->setStatusTip(tip);
    action->setShortcutContext(Qt::ApplicationShortcut); // in the workbench as well
    return action;
}

void MainWindow::createHostMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("Ho&st"));
    measurement = add(menu, tr("&Measurement running"), tr("Disables the entries of modules that must not run then"),
                      [this](bool isOn) { emit measurementSwitched(isOn); });
    measurement->setObjectName("measurement");
    measurement->setCheckable(true);
    measurement->setShortcut(tr("Ctrl+M"));
    connect(measurement, &QAction::toggled, measurementState, &QWidget::setVisible);
    add(menu, tr("&Workbench"), tr("Brings the workbench to the front"), [this] {
        emit workbenchWanted();
    })->setShortcut(tr("Ctrl+B"));
    menu->addSeparator();
    add(menu, tr("&Quit"), tr("Ends the host"), [this] { close(); })->setShortcut(tr("Ctrl+Q"));
}

void MainWindow::createRecordingMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Recording"));
    QAction* start =
        add(menu, tr("&Record..."), tr("Writes every command into a new file"), [this] { startRecording(); });
    QAction* stop = add(menu, tr("&Stop recording"), tr("Ends the recording; its file is complete"),
                        [this] { say(host->stopRecording()); });
    QAction* rewind = add(menu, tr("Re&wind the replay"), tr("Answers from the beginning of the recording again"),
                          [this] { say(host->rewindReplay()); });
    connect(menu, &QMenu::aboutToShow, this, [=] {
        start->setEnabled(!host->recorder().isRecording());
        stop->setEnabled(host->recorder().isRecording());
        rewind->setEnabled(host->isReplaying());
    });
}

void MainWindow::createControllerMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Controller"));
    add(menu, tr("&Reset"), tr("Puts the controller back to how it was chosen"),
        [this] { say(host->resetController()); });
    add(menu, tr("&Open..."), tr("Reads a controller file or a recording"), [this] { openController(); });
    add(menu, tr("&Save as..."), tr("Writes the controller's present answers into a file"),
        [this] { saveController(); });
    menu->addSeparator();
    menu->setToolTipsVisible(true); // the open menu may hide the status bar
    QVector<NamedController> controllers;
    say(readNamedControllers(&controllers));
    for (const NamedController& named : qAsConst(controllers))
        add(menu, named.name, named.table.description, [this, named] {
            say(host->chooseController(named));
        })->setToolTip(named.table.description);
}

void MainWindow::createHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->menuAction()->setProperty("orderNumber", helpOrder);
    menu->addAction(QWhatsThis::createAction(this));
    menu->addAction(tr("&About"), this, &MainWindow::about);
}

void MainWindow::startRecording()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Record every command"), "session.txt", {}, nullptr,
                                                      QFileDialog::DontConfirmOverwrite); // the recorder refuses it
    if (!file.isEmpty())
        say(host->startRecording(file));
}

void MainWindow::openController()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a controller"), {}, tr(fileFilter));
    if (file.isEmpty())
        return;
    NamedController read;
    const QString problem = readController(file, &read);
    say(problem.isEmpty() ? host->chooseController(read) : problem);
}

void MainWindow::saveController()
{
    QString file = QFileDialog::getSaveFileName(this, tr("Save the controller"), "controller.txt", tr(fileFilter));
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += ".txt";
    const QString problem = saveTable(file, host->controller().table());
    say(problem.isEmpty() ? tr("Saved to %1").arg(file) : problem);
}

void MainWindow::about()
{
    const QString problem = host->errorString();
    QMessageBox::about(
        this, tr("About"),
        tr("Development Host %1\n%2\nQt %3")
            .arg(QString(HOST_VERSION), problem.isEmpty() ? host->moduleText() : problem, QString(qVersion())));
}
