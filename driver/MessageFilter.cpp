#include "MessageFilter.h"

void takeWarnings(void (*take)(const QString& message))
{
    static void (*taker)(const QString&);
    taker = take;
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg && message != "This plugin does not support propagateSizeHints()")
            taker(message);
    });
}
