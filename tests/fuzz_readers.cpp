#include "ControllerFile.h"
#include "Recording.h"
#include "StateTree.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

/** Called by libFuzzer: reads \a data as a recording and as a controller file. What is taken must be whole. */
extern "C" int LLVMFuzzerTestOneInput(const char* data, size_t size)
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath("input");
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(data, static_cast<qint64>(size)) < 0)
        return -1;
    file.close();
    QVector<RecordedLine> lines;
    QString error;
    ControllerIdentity controller;
    if (readRecording(name, &lines, &error) != error.isEmpty())
        std::abort();
    if (error.isEmpty() && !readConnection(lines.first().text, &controller))
        std::abort();
    error.clear();
    ControllerState state = ControllerState::builtIn();
    if (readControllerFile(name, &state, &error) != error.isEmpty())
        std::abort();
    ControllerState again;
    if (error.isEmpty() && !readState(toTree(state).toJson(), &again, &error))
        std::abort(); // a state that a file gave can be written and read back
    return 0;
}
