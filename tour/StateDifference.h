#pragma once

#include <QJsonValue>
#include <QString>

/**
 * The first difference between two controller states as JSON, such as "cards[0].frequency: 61 expected, 60 found";
 * empty when they are equal. Numbers within a millionth of each other are equal: the wire carries six decimals.
 */
QString firstDifference(const QJsonValue& expected, const QJsonValue& found, const QString& place = QString());
