#include "HostSetup.h"

#include "ControllerFile.h"

#include <QCoreApplication>
#include <QDir>

/** The folder of the named controllers. */
static QString controllerFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" CONTROLLER_DIR);
}

QString readController(const QString& wanted, HostSetup* setup)
{
    const bool isName = !wanted.contains('/') && !wanted.endsWith(".json");
    const QString file = isName ? controllerFolder() + '/' + wanted + ".json" : wanted;
    if (isName && !QFileInfo::exists(file))
        return "--controller " + wanted + ": no such controller, see --list";
    ControllerState state = ControllerState::builtIn();
    state.description.clear(); // it would not be true of what the file changes
    QString problem = readControllerFile(file, &state);
    if (!problem.isEmpty())
        return problem;
    setup->controllerName = isName ? wanted : QFileInfo(file).fileName();
    setup->state = state;
    return {};
}

QString readNamedControllers(QVector<HostSetup>* controllers)
{
    const QStringList files = QDir(controllerFolder()).entryList({"*.json"}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        HostSetup named;
        QString problem = readController(file.chopped(5), &named);
        if (!problem.isEmpty())
            return problem;
        controllers->append(named);
    }
    return files.isEmpty() ? controllerFolder() + ": no controller files" : QString();
}
