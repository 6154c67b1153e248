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

bool readControllerFile(const QString& file, ControllerState* state, QString* error)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        *error = file + ": " + input.errorString();
        return false;
    }
    const QByteArray text = input.readAll();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    QString reason;
    if (parseError.error != QJsonParseError::NoError)
        reason = syntaxError(text, parseError);
    else
        readState(document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array()), state, &reason);
    if (!reason.isEmpty())
        *error = file + ": " + reason;
    return reason.isEmpty();
}

bool saveControllerFile(const QString& file, const ControllerState& state, QString* error)
{
    QSaveFile output(file);
    const QByteArray text = QJsonDocument(toTree(state).toJson().toObject()).toJson();
    if (output.open(QIODevice::WriteOnly) && output.write(text) == text.size() && output.commit())
        return true;
    *error = file + ": " + output.errorString();
    return false;
}
