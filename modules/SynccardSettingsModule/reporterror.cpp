#include "reporterror.h"

#include "IOManager.h"

#include <QString>

void reportError(IOManager* cm, const QString& message)
{
    cm->reportError("standard", "ZORVAN3", 1, message.toLatin1().constData());
}
