#include "NamedController.h"

#include "ControllerFile.h"

#include <QDir>

QString readController(const QString& wanted, NamedController* controller)
{
    ControllerTable table;
    QString problem = readTable(wanted, {}, &table);
    if (problem.isEmpty())
        *controller = {QFileInfo(wanted).fileName(), table};
    return problem;
}

QString readNamedControllers(QVector<NamedController>* controllers)
{
    const QFileInfoList files = QDir(controllerDirectory()).entryInfoList({"*.txt"}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        NamedController named;
        QString problem = readController(file.completeBaseName(), &named);
        if (!problem.isEmpty())
            return problem;
        if (!named.table.description.isEmpty())
            controllers->append(named);
    }
    return files.isEmpty() ? controllerDirectory() + ": there are no controller files" : QString();
}
