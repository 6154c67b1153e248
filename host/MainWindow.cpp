#include "MainWindow.h"

#include "ControllerFile.h"
#include "DevelopmentHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyle>

static constexpr int columns = 60; // of text, in average characters
static constexpr int lines = 8;    // of text: long descriptions and reasons take several
static constexpr int margin = 12;  // pixels
static constexpr char fileFilter[] = "Text files (*.txt);;All files (*)";

MainWindow::MainWindow(DevelopmentHost* host) : host(host)
{
    QApplication::setWindowIcon(style()->standardIcon(QStyle::SP_ComputerIcon)); // of both windows
    // A modal dialog blocks only windows of its group. The workbench has no parent, so it stays usable.
    setAttribute(Qt::WA_GroupLeader);
    createDescription();
    createHostMenu();
    createRecordingMenu();
    if (!host->isReplaying())
        createControllerMenu();
}

MainWindow::~MainWindow()
{
    host->endModule();
}

void MainWindow::createDescription()
{
    auto* description = new QLabel;
    description->setTextFormat(Qt::PlainText);
    description->setTextInteractionFlags(Qt::TextSelectableByMouse);
    description->setWordWrap(true);
    description->setMargin(margin);
    description->setAlignment(Qt::AlignTop);
    description->setMinimumSize(columns * fontMetrics().averageCharWidth(), lines * fontMetrics().lineSpacing());
    setCentralWidget(description);
    connect(host, &DevelopmentHost::noted, this, [this, description] {
        description->setText(host->description());
        setWindowTitle(host->title() + " - Development Host");
    });
}

/** Adds a menu entry that calls \a request and shows its error message. A busy host shows the reason instead. */
QAction* MainWindow::add(QMenu* menu, const QString& text, const Request& request)
{
    return menu->addAction(text, this, [this, request] {
        const QString reason = host->whyBusy();
        refuse(reason.isEmpty() ? request() : reason);
    });
}

void MainWindow::createHostMenu()
{
    QMenu* menu = menuBar()->addMenu("Ho&st");
    menu->addAction("&Workbench", this, &MainWindow::workbenchWanted, {"Ctrl+B"});
    menu->addAction("&Quit", this, &QWidget::close, {"Ctrl+Q"});
    const QList<QAction*> entries = menu->actions();
    for (QAction* entry : entries)
        entry->setShortcutContext(Qt::ApplicationShortcut); // active in both windows
}

void MainWindow::createRecordingMenu()
{
    QMenu* menu = menuBar()->addMenu("&Recording");
    add(menu, "&Record...", [this] {
        auto* dialog = new QFileDialog(this, "Record every command", "session.txt", fileFilter);
        dialog->setOption(QFileDialog::DontConfirmOverwrite); // A recording never replaces a file.
        return askForFile(dialog, QFileDialog::AcceptSave,
                          [this](const QString& file) { return host->recorder().start(file); });
    });
    QAction* stop = add(menu, "&Stop recording", [this] {
        host->recorder().stop();
        return QString();
    });
    connect(menu, &QMenu::aboutToShow, stop, [this, stop] { stop->setEnabled(host->recorder().isRecording()); });
}

void MainWindow::createControllerMenu()
{
    QMenu* menu = menuBar()->addMenu("&Controller");
    add(menu, "&Reset", [this] { return host->resetController(); });
    add(menu, "&Open...", [this] {
        auto* dialog = new QFileDialog(this, "Open a controller or a recording", {}, fileFilter);
        return askForFile(dialog, QFileDialog::AcceptOpen, [this](const QString& file) {
            NamedController controller;
            const QString problem = readController(file, &controller);
            return problem.isEmpty() ? host->chooseController(controller) : problem;
        });
    });
    add(menu, "&Save as...", [this] {
        auto* dialog = new QFileDialog(this, "Save the controller", "controller.txt", fileFilter);
        return askForFile(dialog, QFileDialog::AcceptSave, [this](const QString& file) {
            const Recorder& recorder = host->recorder();
            if (recorder.isRecording() && QFileInfo(file) == QFileInfo(recorder.fileName()))
                return file + ": this is the running recording. Stop it first, or choose another file.";
            return saveTable(file, host->controller().table());
        });
    });
    menu->addSeparator();
    menu->setToolTipsVisible(true);
    QVector<NamedController> controllers;
    const QString problem = readNamedControllers(&controllers);
    if (!problem.isEmpty())
        menu->addAction(problem)->setEnabled(false);
    for (const NamedController& named : qAsConst(controllers))
        add(menu, named.name, [this, named] {
            return host->chooseController(named);
        })->setToolTip(named.table.description);
}

/** Opens \a dialog and calls \a use with the file that the user chooses. Returns an empty string, as a request. */
QString MainWindow::askForFile(QFileDialog* dialog, QFileDialog::AcceptMode mode, const Use& use)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(mode);
    dialog->setDefaultSuffix("txt");
    // Queued: a file dialog may still be open when it emits the signal.
    connect(
        dialog, &QFileDialog::fileSelected, this, [this, use](const QString& file) { refuse(use(file)); },
        Qt::QueuedConnection);
    dialog->open();
    return {};
}

/**
 * Shows \a problem in a message box, unless it is empty. While the host is busy, \a problem becomes a note in the log,
 * because a box would disturb the module's dialog.
 */
void MainWindow::refuse(const QString& problem)
{
    if (problem.isEmpty())
        return;
    if (!host->whyBusy().isEmpty()) {
        emit host->noted(problem);
        return;
    }
    auto* box = new QMessageBox(QMessageBox::Warning, "Development Host", problem, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    refuse(host->whyBusy());
    event->setAccepted(host->whyBusy().isEmpty());
    if (event->isAccepted())
        QApplication::quit();
}
