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

QString controllerDirectory()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" CONTROLLER_DIR);
}

QString readTable(const QString& wanted, const QStringList& files, ControllerTable* table)
{
    const bool isName = !wanted.contains('/') && !wanted.endsWith(suffix);
    QString name = isName ? controllerDirectory() + '/' + wanted + suffix : wanted;
    if (!files.isEmpty())
        name = QFileInfo(files.first()).dir().filePath(name);
    if (isName && !QFileInfo::exists(name))
        return QString("%1: not the name of a controller. --list shows the names. A file needs a path such as ./%1")
            .arg(wanted);
    const QString path = QFileInfo(name).canonicalFilePath();
    if (files.contains(path))
        return name + ": leads back to itself";
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return name + ": " + file.errorString();
    const QStringList lines = linesOf(file.readAll());
    if (lines == QStringList(QString()))
        return name + ": the file is empty";
    if (lines.first() + '\n' == recordingHeader)
        return readRecordedTable(QStringList(name) + files, table);
    ControllerText text(table, QStringList(path) + files);
    for (int i = 0; i < lines.size(); ++i) {
        const QString fault = text.read(lines.at(i));
        if (!fault.isEmpty())
            return QString("%1:%2: %3").arg(name).arg(i + 1).arg(fault);
    }
    return {};
}

QString saveTable(const QString& file, const ControllerTable& table)
{
    if (QFileInfo::exists(file) && !QFileInfo(file).isFile())
        return file + ": not a file"; // The writer would replace a device.
    QSaveFile output(file);
    // Unbuffered, because with a buffer, commit() succeeded with an empty file on a full disk.
    const QByteArray text = written(table);
    const bool isSaved = output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                         && writeWhole(&output, text) == text.size() && output.commit();
    return isSaved ? QString() : file + ": " + output.errorString();
}
