#include "Files.h"

#include <QFile>
#include <QTest>

void addRows(const char* name)
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QFile file(QString(DATA_DIR "/") + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const int arrow = line.indexOf(" ->");
        if (!line.startsWith('#') && arrow > 0)
            QTest::newRow(line.left(arrow)) << line.left(arrow).replace("\\n", "\n") << line.mid(arrow + 4);
    }
}

void writeFile(const QString& file, const QByteArray& text)
{
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(text) == text.size());
}
