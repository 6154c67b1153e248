#pragma once

class IOManager;
class QString;

/** Reports a failed controller command, in English and filled in, to the host, which decides how to show it. */
void reportError(IOManager* cm, const QString& message);
