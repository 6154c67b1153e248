#include "StateDifference.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

constexpr double wirePrecision = 1e-6;

QString text(const QJsonValue& value)
{
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.mid(1, json.size() - 2));
}

QString inArrays(const QJsonArray& expected, const QJsonArray& found, const QString& place)
{
    for (int i = 0; i < qMax(expected.size(), found.size()); ++i) {
        QString difference = firstDifference(expected.at(i), found.at(i), QString("%1[%2]").arg(place).arg(i));
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

QString inObjects(const QJsonObject& expected, const QJsonObject& found, const QString& place)
{
    const QStringList keys = expected.keys();
    for (const QString& key : keys) {
        QString difference =
            firstDifference(expected.value(key), found.value(key), place.isEmpty() ? key : place + '.' + key);
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

} // namespace

QString firstDifference(const QJsonValue& expected, const QJsonValue& found, const QString& place)
{
    if (expected.isObject() && found.isObject())
        return inObjects(expected.toObject(), found.toObject(), place);
    if (expected.isArray() && found.isArray())
        return inArrays(expected.toArray(), found.toArray(), place);
    const bool areNear =
        expected.isDouble() && found.isDouble() && std::abs(expected.toDouble() - found.toDouble()) < wirePrecision;
    if (areNear || expected == found)
        return {};
    return QString("%1: %2 expected, %3 found").arg(place, text(expected), text(found));
}
