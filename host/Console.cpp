#include "Console.h"

#include <QCoreApplication>

#include <cstdio>

void print(const QString& line)
{
    static_cast<void>(std::fputs(qPrintable(line + '\n'), stdout));
    static_cast<void>(std::fflush(stdout)); // so that lines on standard error come in order
}

int fail(const QString& message)
{
    static_cast<void>(std::fputs(qPrintable(QCoreApplication::applicationName() + ": " + message + '\n'), stderr));
    return 2;
}
