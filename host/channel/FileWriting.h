#pragma once

#include <QFileDevice>

/**
 * Writes \a bytes into \a file, which must be open without a buffer. Returns the number of bytes written. If bytes
 * are missing, the error string of \a file is the system's reason: the system gives it only for a write of the rest.
 */
inline qint64 writeWhole(QFileDevice* file, const QByteArray& bytes)
{
    qint64 written = file->write(bytes);
    if (written > 0 && written < bytes.size())
        written += qMax(qint64(0), file->write(bytes.mid(static_cast<int>(written))));
    return written;
}
