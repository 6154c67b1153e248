#include "Workbench.h"

#include "ControllerPane.h"
#include "DevelopmentHost.h"
#include "LogPane.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

static constexpr QSize initialSize(960, 560);

Workbench::Workbench(DevelopmentHost* host)
{
    setAttribute(Qt::WA_AlwaysShowToolTips); // even while the dialog is the active window
    const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(initialSize.boundedTo(QGuiApplication::primaryScreen()->availableSize() - frame));
    connect(host, &DevelopmentHost::noted, this, [this, host] { setWindowTitle(host->title() + " - Workbench"); });
    auto* tabs = new QTabWidget;
    tabs->addTab(new LogPane(host), "Lo&g");
    if (!host->isReplaying())
        tabs->addTab(new ControllerPane(host), "C&ontroller");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
}

void Workbench::bringToFront()
{
    if (isHidden())
        move(pos()); // Otherwise the window manager would place a closed window anew.
    show();
    raise();
    activateWindow();
}
