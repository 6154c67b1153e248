#pragma once

class IOManager;
class QString;

/** Reports a failed command to the host, which decides how to show it. \a message is a finished English string. */
void reportError(IOManager* cm, const QString& message);
