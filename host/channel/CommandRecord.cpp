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

/** The commands with traits of their own. The last row stands for all other commands. */
static constexpr CommandTraits table[] = {
    {"get synccard available", 200, false, true},
    {"get synccard has_input_frequency", 16, true, false},
    {"get synccard input_frequency", 200, true, false},
    {"get synccard output d01", 100, false, false},
    {"", 200, false, false},
};

const CommandTraits& traitsOf(const QByteArray& command)
{
    const CommandTraits* traits = table;
    while (*traits->command && command != traits->command)
        ++traits;
    return *traits;
}
