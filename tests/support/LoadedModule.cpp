#include "LoadedModule.h"

#include "MessageFilter.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

void failOnWarnings()
{
    takeWarnings([](const QString& message) { QTest::qFail(qPrintable("Qt says: " + message), __FILE__, __LINE__); });
}

BackendVersions backend(const QString& text)
{
    VersionInfo protocol = newestProtocol();
    bool isVersion = false;
    protocol.fromString(text.section(' ', 0, 0).replace("newest", protocol.toString()), &isVersion);
    if (!isVersion)
        qFatal("no version: %s", qPrintable(text));
    return {VersionInfo(1, 0, 0), protocol, VersionInfo(1, 0, 0), text.section(' ', 1)};
}

LoadedModule::LoadedModule(const QByteArrayList& script)
    : channel(&link), versions(backend("newest FERNBANK")), parent(new QWidget), loader(PLUGIN_FILE)
{
    failOnWarnings();
    QString fault = link.script(script);
    if (fault.isEmpty())
        fault = loader.load();
    if (!fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    QObject::connect(&channel, &ControllerChannel::executed, &channel, [this](const CommandRecord& record) {
        if (record.result != 0)
            link.failed.append(link.commands.size() - 1);
    });
    QObject::connect(&channel, &ControllerChannel::reported, &channel,
                     [this](const QString& category, const QString& systemTag, int flag, const QString& message) {
                         const bool isConvention = category == "standard" && systemTag == "ZORVAN3" && flag == 1;
                         link.reports.append((isConvention ? "" : "wrong convention: ") + message.toLatin1());
                         link.during(message.toLatin1());
                     });
    loader.setParameters(&channel, parent, &versions, false);
    element = loader.module()->get_gui_elements().first();
    QObject::connect(&boxPoller, &QTimer::timeout, &boxPoller, [this] { closeBox(); });
    boxPoller.start(0);
    parent->show();
}

void LoadedModule::connectTo(const QString& versionsText)
{
    versions = backend(versionsText);
    ControllerTable table = link.table();
    table.identity = {versions.protocol(), versions.hubModel()};
    link.setTable(table);
}

LoadedModule::~LoadedModule()
{
    loader.unload();
    delete parent;
}

/** Closes an open message box, after the action that the case has for it. */
void LoadedModule::closeBox()
{
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    const bool isWarning = box->icon() == QMessageBox::Critical && box->standardButtons() == QMessageBox::Ok;
    boxes.append((isWarning && box->parentWidget() == dialog() ? "" : "wrong kind or parent: ")
                 + box->windowTitle().toUtf8() + ": " + box->text().toUtf8());
    link.during(boxes.last());
    if (box)
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
}

int LoadedModule::open(const DialogUser::Steps& steps) const
{
    dialog()->setUpdatesEnabled(false); // Painting would take half of the time.
    // As in a host: the focus goes from its window to the dialog.
    parent->activateWindow();
    QApplication::processEvents();
    int result = -3;
    const auto open = [&] { QMetaObject::invokeMethod(dialog(), "update_and_exec", Q_RETURN_ARG(int, result)); };
    const bool isReady = QTest::qWaitFor([this] { return parent->isActiveWindow(); });
    if (!isReady || user().openBy(open, steps) == DialogUser::LeftOpen)
        QTest::qFail("the dialog did not open or was left open", __FILE__, __LINE__);
    return result;
}
