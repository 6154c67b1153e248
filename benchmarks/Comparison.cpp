#include "Comparison.h"

#include "DialogText.h"

#include <QImage>
#include <QTimer>

Comparison::Comparison(const Workload& workload)
    : channel(workload), versions({1, 0, 0}, {1, 23, 0}, {1, 0, 0}, "QUILLSTONE"), loader(ModuleLoader::defaultFile())
{
    if (!loader.load())
        qFatal("%s", qPrintable(loader.errorString()));
    loader.setParameters(&channel, &parent, &versions, false);
    constructModule();
    constructBare();
}

void Comparison::destruct()
{
    loader.module()->exit_module();
    bare.reset();
}

void Comparison::constructModule()
{
    module = qobject_cast<QDialog*>(loader.module()->get_gui_elements().constFirst()->content);
}

void Comparison::constructBare()
{
    bare = std::make_unique<BareDialog>(&parent);
}

void Comparison::openModule(const Steps& inside) const
{
    QTimer::singleShot(0, module, [&] {
        if (inside)
            inside();
        module->done(QDialog::Rejected);
    });
    call("update_and_exec");
}

void Comparison::openBare(const Steps& inside) const
{
    QTimer::singleShot(0, bare.get(), [&] {
        if (inside)
            inside();
        bare->done(QDialog::Rejected);
    });
    bare->fill(channel.workload);
    bare->exec();
}

void Comparison::call(const char* slot) const
{
    QMetaObject::invokeMethod(module, slot, Qt::DirectConnection);
}

int Comparison::commandsOf(const Steps& steps) const
{
    const int before = channel.commands;
    steps();
    return channel.commands - before;
}

QString Comparison::difference() const
{
    QStringList moduleLines;
    QStringList bareLines;
    QImage modulePicture;
    QImage barePicture;
    openModule([&] {
        moduleLines = textOfDialog(module);
        modulePicture = module->grab().toImage();
    });
    openBare([&] {
        bareLines = textOfDialog(bare.get());
        barePicture = bare->grab().toImage();
    });
    for (int i = 0; i < qMax(moduleLines.size(), bareLines.size()); ++i) {
        if (moduleLines.value(i) != bareLines.value(i))
            return QString("the module shows '%1', the bare dialog '%2'").arg(moduleLines.value(i), bareLines.value(i));
    }
    if (channel.reports > 0)
        return "the module reports errors to the host";
    return modulePicture == barePicture ? QString() : "the pictures of the module and the bare dialog differ";
}
