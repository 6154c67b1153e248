#pragma once

#include <QFileDialog>
#include <QMainWindow>

#include <functional>

class DevelopmentHost;

/**
 * The host's window: the menus, and a short description of the host. The module's open dialog blocks this window,
 * but not the workbench. Does not own the host.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(DevelopmentHost* host);
    /** Ends the module, whose dialog is a child of this window. */
    ~MainWindow() override;

signals:
    void workbenchWanted();

protected:
    /** Ends the program, but not while a module's dialog is open, so that nothing entered there is lost. */
    void closeEvent(QCloseEvent* event) override;

private:
    /** Carries out a request of the user. Returns an error message, or an empty string on success. */
    using Request = std::function<QString()>;
    /** Uses the file that the user has chosen. Returns an error message, or an empty string on success. */
    using Use = std::function<QString(const QString& file)>;

    void createDescription();
    void createHostMenu();
    void createRecordingMenu();
    void createControllerMenu();
    QAction* add(QMenu* menu, const QString& text, const Request& request);
    QString askForFile(QFileDialog* dialog, QFileDialog::AcceptMode mode, const Use& use);
    void refuse(const QString& problem);

    DevelopmentHost* host;
};
