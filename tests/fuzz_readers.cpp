#include "ControllerFile.h"
#include "ControllerText.h"
#include "Recording.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

static void demand(bool condition)
{
    if (!condition)
        std::abort();
}

static void write(const QString& name, const QByteArray& content)
{
    QFile file(name);
    demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/** Called by libFuzzer: reads \a data as a recording and as a controller. An accepted controller can be saved and read.
 */
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size)
{
    static int argc = 1;
    static char program[] = "bin/fuzz_readers";
    static char* argv[] = {program, nullptr};
    static const QCoreApplication application(argc, argv);
    static const QTemporaryDir folder;
    const QString name = folder.filePath("input.txt");
    write(name, QByteArray(data, static_cast<int>(size)));
    QVector<RecordedLine> lines;
    ControllerIdentity identity;
    demand(!readRecording(name, &lines).isEmpty() || readConnection(lines.first().text, &identity));
    ControllerTable table;
    if (!readTable(name, {}, &table).isEmpty())
        return 0;
    const QByteArray text = written(table);
    write(name, text);
    ControllerTable again;
    demand(readTable(name, {}, &again).isEmpty());
    demand(written(again) == text);
    return 0;
}
