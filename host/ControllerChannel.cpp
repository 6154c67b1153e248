#include "ControllerChannel.h"

#include "SimulatedController.h"

bool ControllerChannel::execute(const QByteArray& operation, const QByteArray& command, QByteArray* answer)
{
    if (operation == "set")
        return controller->execute("zorvan2 set " + command).ok;
    const bool isRaw = operation == "send";
    const QByteArray line = isRaw ? command : "zorvan2 get " + command;
    const ControllerReply reply = controller->execute(line);
    // The reply line repeats the command, and the value follows.
    *answer = isRaw ? reply.line : reply.line.mid(line.size() + 1);
    return reply.ok;
}

void ControllerChannel::reportError(const char* category, const char* systemTag, int flag, const char* message)
{
    emit reported(QString::fromLatin1(category), QString::fromLatin1(systemTag), flag, QString::fromLatin1(message));
}
