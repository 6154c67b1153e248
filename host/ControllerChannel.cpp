#include "ControllerChannel.h"

#include "ControllerLink.h"

bool ControllerChannel::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    return link->execute(operation, command, answer);
}

void ControllerChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    emit reported(QString::fromLatin1(category), QString::fromLatin1(systemTag), flag, QString::fromLatin1(message));
}
