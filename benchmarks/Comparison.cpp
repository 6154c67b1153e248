#include "Comparison.h"

#include "ControllerTable.h"
#include "DialogText.h"

#include <QImage>
#include <QTimer>

#include <algorithm>

void open(QDialog* dialog, const std::function<void()>& inside)
{
    QTimer::singleShot(0, dialog, [inside, dialog] {
        if (inside)
            inside();
        dialog->done(QDialog::Rejected);
    });
    QMetaObject::invokeMethod(dialog, "update_and_exec");
}

/** Returns a message: the name of the widget, and an excerpt of both lines, which may be long, at their difference. */
static QString firstDifference(const QString& module, const QString& bare)
{
    const auto* const end = std::mismatch(module.begin(), module.end(), bare.begin(), bare.end()).first;
    const int begin = qMax(0, static_cast<int>(end - module.begin()) - 20);
    return QString("%1: the module shows '%2', the bare dialog '%3'")
        .arg(module.section(':', 0, 0), module.mid(begin, 60), bare.mid(begin, 60));
}

Comparison::Comparison(const Workload& workload)
    : channel(workload), versions({1, 0, 0}, newestProtocol(), {1, 0, 0}, "QUILLSTONE"), bare(&parent, workload),
      loader(ModuleLoader::defaultFile())
{
    if (const QString problem = loader.load(); !problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    loader.setParameters(&channel, &parent, &versions, false);
}

QDialog* Comparison::module() const
{
    return qobject_cast<QDialog*>(loader.module()->get_gui_elements().constFirst()->content);
}

QString Comparison::difference()
{
    QDialog* const dialogs[] = {module(), &bare};
    for (QDialog* dialog : dialogs)
        open(dialog);
    const int firstReads = channel.reads;
    QStringList lines[2];
    QImage pictures[2];
    for (int i = 0; i < 2; ++i)
        open(dialogs[i], [&] {
            lines[i] = textOfDialog(dialogs[i]);
            pictures[i] = dialogs[i]->grab().toImage();
        });
    for (int i = 0; i < qMax(lines[0].size(), lines[1].size()); ++i) {
        if (lines[0].value(i) != lines[1].value(i))
            return firstDifference(lines[0].value(i), lines[1].value(i));
    }
    if (pictures[0] != pictures[1])
        return "the pictures of the module and the bare dialog differ";
    if (!channel.reports.isEmpty())
        return "the module reports: " + channel.reports.constFirst();
    if (channel.reads != 2 * firstReads)
        return QString("the module's first opening reads %1 commands, the first two %2")
            .arg(firstReads)
            .arg(channel.reads);
    return {};
}
