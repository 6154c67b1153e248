#include "WireText.h"

#include <QRegularExpression>

QString escapeOf(QChar character)
{
    return QString("\\x%1").arg(character.unicode(), 2, 16, QChar('0'));
}

QString escaped(const QByteArray& text)
{
    QString line = QString::fromLatin1(text.constData(), text.size()); // NUL bytes included
    // A recording separates a command from its answer by an arrow.
    line.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace("->", "\\->");
    for (int i = line.size() - 1; i >= 0; --i) {
        if (line.at(i).category() == QChar::Other_Control)
            line.replace(i, 1, escapeOf(line.at(i)));
    }
    return line;
}

QByteArray unescaped(const QString& written)
{
    QByteArray bytes = written.toLatin1();
    for (int i = bytes.indexOf('\\'); i >= 0; i = bytes.indexOf('\\', i + 1)) {
        bytes.remove(i, 1);
        if (bytes.at(i) == 'n')
            bytes[i] = '\n';
        else if (bytes.at(i) == 'r')
            bytes[i] = '\r';
        else if (bytes.at(i) == 'x')
            bytes.replace(i, 3, QByteArray::fromHex(bytes.mid(i + 1, 2)));
    }
    return bytes;
}

QString textFault(const QString& line)
{
    static const QRegularExpression escapes(R"(^(?:[^\\]|\\[nr\\-]|\\x[0-9a-f]{2})*$)");
    if (QString::fromLatin1(line.toLatin1()) != line)
        return "a character that is not Latin-1, or not UTF-8";
    return escapes.match(line).hasMatch() ? QString() : R"(an unknown "\". Write the character itself as "\\".)";
}

QStringList linesOf(const QByteArray& content)
{
    // Without the size, fromUtf8() would stop at a NUL byte.
    return QString::fromUtf8(content.constData(), content.size()).replace("\r\n", "\n").split('\n');
}
