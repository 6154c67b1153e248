#include "ControllerFile.h"

#include "StateTree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

/** "line 3, column 7: reason" for the place where the parser stopped. */
QString syntaxError(const QByteArray& text, const QJsonParseError& parseError)
{
    const QByteArray before = text.left(parseError.offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QString("line %1, column %2: %3").arg(line).arg(column).arg(parseError.errorString()).simplified();
}

} // namespace

QString readControllerFile(const QString& file, ControllerState* state)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return file + ": " + input.errorString();
    const QByteArray text = input.readAll();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return file + ": " + syntaxError(text, parseError);
    const QString reason =
        readState(document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array()), state);
    return reason.isEmpty() ? reason : file + ": " + reason;
}

QString saveControllerFile(const QString& file, const ControllerState& state)
{
    QSaveFile output(file);
    const QByteArray text = QJsonDocument(toTree(state).toJson().toObject()).toJson();
    const bool isSaved = output.open(QIODevice::WriteOnly) && output.write(text) == text.size() && output.commit();
    return isSaved ? QString() : file + ": " + output.errorString();
}
