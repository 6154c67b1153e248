#include "CommandRecord.h"

#include <QByteArrayList>

static const QByteArrayList& texts()
{
    static const QByteArrayList list = {"send", "get", "int", "double", "bool", "set"};
    return list;
}

QByteArray textOf(Operation operation)
{
    return texts().at(static_cast<int>(operation));
}

bool isOperation(const QByteArray& text)
{
    return texts().contains(text);
}
