#include "Console.h"

#include <QCoreApplication>

#include <cstdio>

void print(const QString& line)
{
    static_cast<void>(std::fputs(qPrintable(line + '\n'), stdout));
    static_cast<void>(std::fflush(stdout)); // keeps the order beside standard error
}

int fail(const QString& message)
{
    static_cast<void>(std::fputs(qPrintable(QCoreApplication::applicationName() + ": " + message + '\n'), stderr));
    return 2;
}
