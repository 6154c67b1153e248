#include "ControllerMenu.h"

#include "ControllerFile.h"
#include "DevelopmentHost.h"
#include "NamedControllers.h"

#include <QFileDialog>

static constexpr char fileFilter[] = QT_TRANSLATE_NOOP("ControllerMenu", "Controller files (*.json)");

ControllerMenu::ControllerMenu(DevelopmentHost* host) : QMenu(tr("&Controller"), &host->window()), host(host)
{
    const auto add = [&](const QString& text, const QString& tip, auto slot) {
        addAction(text, this, slot)->setStatusTip(tip);
    };
    add(tr("&Reset"), tr("Puts the controller back to how it began"),
        [this] { this->host->window().say(this->host->resetController()); });
    add(tr("&Open..."), tr("Reads a controller file"), [this] { open(); });
    add(tr("&Save as..."), tr("Writes the controller's present state into a file"), [this] { save(); });
    addSeparator();
    addNamed();
}

void ControllerMenu::addNamed()
{
    QVector<HostSetup> controllers;
    host->window().say(readNamedControllers(&controllers));
    for (const HostSetup& named : qAsConst(controllers)) {
        QAction* action =
            addAction(named.controllerName, this, [this, named] { host->window().say(host->chooseController(named)); });
        action->setStatusTip(named.state.description);
    }
}

void ControllerMenu::open()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a controller"), {}, tr(fileFilter));
    if (file.isEmpty())
        return;
    HostSetup read;
    const QString problem = readController(file, &read);
    host->window().say(problem.isEmpty() ? host->chooseController(read) : problem);
}

void ControllerMenu::save()
{
    const QString file =
        QFileDialog::getSaveFileName(this, tr("Save the controller"), "controller.json", tr(fileFilter));
    QString text = tr("Saved to %1").arg(file);
    if (!file.isEmpty()) {
        saveControllerFile(file, host->controller().state(), &text);
        host->window().say(text);
    }
}
