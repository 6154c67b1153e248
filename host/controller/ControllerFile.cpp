#include "ControllerFile.h"

#include "ControllerText.h"
#include "FileWriting.h"
#include "RecordedTable.h"
#include "Recording.h"
#include "WireText.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

static constexpr char suffix[] = ".txt";

/** The directory of the named controllers. */
static QString directory()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" CONTROLLER_DIR);
}

static bool isName(const QString& wanted)
{
    return !wanted.contains('/') && !wanted.endsWith(suffix);
}

QString readController(const QString& wanted, NamedController* controller)
{
    ControllerTable table;
    QString problem = readTable(wanted, {}, &table);
    if (problem.isEmpty())
        *controller = {isName(wanted) ? wanted : QFileInfo(wanted).fileName(), table};
    return problem;
}

QString readNamedControllers(QVector<NamedController>* controllers)
{
    const QStringList files = QDir(directory()).entryList({QString('*') + suffix}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        NamedController named;
        QString problem = readController(QFileInfo(file).completeBaseName(), &named);
        if (!problem.isEmpty())
            return problem;
        if (!named.table.description.isEmpty())
            controllers->append(named);
    }
    return files.isEmpty() ? directory() + ": there are no controller files" : QString();
}

QString readTable(const QString& wanted, const QStringList& files, ControllerTable* table)
{
    const QDir start = files.isEmpty() ? QDir() : QFileInfo(files.first()).dir();
    const QString name = isName(wanted) ? directory() + '/' + wanted + suffix : start.filePath(wanted);
    if (isName(wanted) && !QFileInfo::exists(name))
        return wanted + ": there is no controller of this name; --list shows the names";
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return name + ": " + file.errorString();
    const QString path = QFileInfo(name).canonicalFilePath();
    if (files.contains(path))
        return name + ": leads back to itself";
    const QStringList lines = linesOf(file.readAll());
    if (lines.first() + '\n' == recordingHeader)
        return readRecordedTable(name, table);
    ControllerText text(table, QStringList(path) + files);
    int number = 0;
    for (const QString& line : lines) {
        const QString fault = text.read(line, ++number);
        if (!fault.isEmpty())
            return QString("%1:%2: %3").arg(name).arg(number).arg(fault);
    }
    return {};
}

QString saveController(const QString& file, const ControllerTable& table)
{
    QSaveFile output(file);
    // Without a buffer: commit() was seen to succeed with an empty file when the disk was full.
    const QByteArray text = written(table);
    const bool isSaved = output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                         && writeWhole(&output, text) == text.size() && output.flush() && output.commit();
    return isSaved ? QString() : file + ": " + output.errorString();
}
