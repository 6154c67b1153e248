#include "ControllerFile.h"
#include "Recording.h"
#include "StateTree.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

static void demand(bool condition)
{
    if (!condition)
        std::abort();
}

/** Called by libFuzzer: reads \a data as a recording and as a controller file. What is taken must be whole. */
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size)
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath("input");
    QFile file(name);
    demand(file.open(QIODevice::WriteOnly) && file.write(data, static_cast<qint64>(size)) >= 0);
    file.close();
    QVector<RecordedLine> lines;
    QString error;
    ControllerIdentity controller;
    demand(readRecording(name, &lines, &error) == error.isEmpty());
    demand(!error.isEmpty() || readConnection(lines.first().text, &controller));
    error.clear();
    ControllerState state = ControllerState::builtIn();
    demand(readControllerFile(name, &state, &error) == error.isEmpty());
    ControllerState again; // a state that a file gave can be written and read back
    demand(!error.isEmpty() || readState(toTree(state).toJson(), &again, &error));
    return 0;
}
