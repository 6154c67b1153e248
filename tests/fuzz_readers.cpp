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
    ControllerIdentity controller;
    demand(!readRecording(name, &lines).isEmpty() || readConnection(lines.first().text, &controller));
    ControllerState state = ControllerState::builtIn();
    ControllerState again; // a state that a file gave can be written and read back
    demand(!readControllerFile(name, &state).isEmpty() || readState(toTree(state).toJson(), &again).isEmpty());
    return 0;
}
