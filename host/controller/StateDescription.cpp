#include "StateDescription.h"

#include <QRegularExpression>

#include <cmath>

QJsonValue FieldRule::parse(const QString& entered) const
{
    bool isNumber = false;
    const double number = form == WholeNumber ? entered.toInt(&isNumber) : entered.toDouble(&isNumber);
    if (form == Flag && (entered == "true" || entered == "false"))
        return entered == "true";
    return isNumber && form > Flag ? QJsonValue(number) : QJsonValue(entered);
}

QString FieldRule::refusal(const QJsonValue& value) const
{
    static const QRegularExpression lineBreak("\\R");
    const QString text = value.toString();
    const double number = value.toDouble();
    bool isVersion = false;
    VersionInfo(0, 0, 0).fromString(text, &isVersion);
    const auto unless = [](bool isTaken, const QString& expected) {
        return isTaken ? QString() : expected + " is expected";
    };
    if (form < Flag && !value.isString())
        return "a text is expected";
    if (!reserved.isEmpty() && text == reserved)
        return QString("\"%1\" stands for %2").arg(reserved, meaning);
    switch (form) {
    case Line:
        return unless(!text.contains(lineBreak), "one line");
    case Word:
        return unless(!text.isEmpty() && !text.contains(' '), "one word");
    case Version:
        return unless(isVersion, "a version such as \"1.23.0\"");
    case Choice:
        return choices.isEmpty() ? "there is nothing to choose from"
                                 : unless(choices.contains(text), "one of " + choices.join(", "));
    case Flag:
        return unless(value.isBool(), "true or false");
    case WholeNumber:
        if (value.isDouble() && std::floor(number) != number)
            return "a whole number is expected";
        [[fallthrough]];
    case Number:
        return unless(value.isDouble() && number >= minimum && number <= maximum,
                      QString("a number from %1 to %2 %3").arg(minimum).arg(maximum).arg(unit).trimmed());
    default:
        return {};
    }
}
