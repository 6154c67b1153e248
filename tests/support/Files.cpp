#include "Files.h"

#include <QFile>
#include <QTest>

void addRows(const char* name)
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    const QByteArrayList lines = readFile(QString(DATA_DIR "/") + name).replace("\n  ", " ").split('\n');
    for (const QByteArray& line : lines) {
        const int arrow = line.indexOf(" ->");
        if (!line.startsWith('#') && arrow > 0)
            QTest::newRow(line.left(arrow)) << line.left(arrow).replace("\\n", "\n") << line.mid(arrow + 4).trimmed();
    }
}

void addTexts(const char* name)
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    const QByteArrayList parts =
        readFile(QString(DATA_DIR "/") + name).replace("\n= ", QByteArray(1, '\0')).split('\0').mid(1);
    for (const QByteArray& part : parts) {
        const QByteArray message = part.left(part.indexOf('\n'));
        QTest::newRow(message) << part.mid(message.size() + 1) << QByteArray(message).replace("\\n", "\n");
    }
}

QByteArray readFile(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(name), qPrintable(file.errorString()));
    return file.readAll();
}

void writeFile(const QString& file, const QByteArray& text)
{
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(text) == text.size());
}
