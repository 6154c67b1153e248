#include "Recording.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

/** The wire's Latin-1 as UTF-8 on one line. An arrow in the text must not be taken for the one before the answer. */
QByteArray escaped(const QByteArray& text)
{
    QString line = QString::fromLatin1(text.constData(), text.size()); // NUL bytes included
    line.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace("->", "\\->");
    for (int i = line.size() - 1; i >= 0; --i) {
        if (isControl(line.at(i)))
            line.replace(i, 1, QString("\\x%1").arg(line.at(i).unicode(), 2, 16, QChar('0')));
    }
    return line.toUtf8();
}

QByteArray unescaped(const QString& text)
{
    QByteArray bytes = text.toLatin1();
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

/** Why the line \a text cannot stand in a recording, whatever it says; a null reason when it can. */
QString refusal(const QString& text)
{
    const auto* const control = std::find_if(text.begin(), text.end(), isControl);
    if (control == text.end())
        return {};
    return QString(R"(a control character, code %1; it is written "%2")")
        .arg(QString::number(control->unicode()), QString::fromUtf8(escaped(QByteArray(1, control->toLatin1()))));
}

/** Reads one line; a null reason when it is whole. */
QString readLine(const QString& text, RecordedLine* line)
{
    static const QRegularExpression form(R"(^(\S+) ((\S+) .*?)( ->(?: (.*))?| failed)$)");
    static const QRegularExpression escapes(R"(^(?:[^\\]|\\[nr\\-]|\\x[0-9a-f]{2})*$)");
    if (QString::fromLatin1(text.toLatin1()) != text)
        return "a character that is not Latin-1, or no UTF-8";
    if (!escapes.match(text).hasMatch())
        return R"(an unknown "\"; the character itself is written "\\")";
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return R"("SECONDS OPERATION COMMAND -> ANSWER" or "... failed" is expected)";
    bool isTime = false;
    match.captured(1).toDouble(&isTime);
    if (!isTime)
        return QString("seconds are expected, \"%1\" is found").arg(match.captured(1));
    line->text = unescaped(match.captured(2));
    line->isAnswered = match.captured(4) != " failed";
    line->answer = unescaped(match.captured(5));
    ControllerIdentity controller;
    if (match.captured(3) == "connect")
        return readConnection(line->text, &controller)
                   ? QString()
                   : "a protocol version such as 1.23.0 is expected behind \"connect\"";
    const bool isKnown = isOperation(match.captured(3).toLatin1());
    return isKnown ? QString() : QString("unknown operation \"%1\"").arg(match.captured(3));
}

} // namespace

QByteArray RecordedLine::toLine(qint64 milliseconds) const
{
    return QByteArray::number(static_cast<double>(milliseconds) / 1000.0, 'f', 3) + ' ' + escaped(text)
           + (isAnswered ? " -> " + escaped(answer) : " failed") + '\n';
}

QByteArray connectionText(const ControllerIdentity& controller)
{
    return QString("connect %1 %2").arg(controller.protocol.toString(), controller.model).trimmed().toLatin1();
}

bool readConnection(const QByteArray& text, ControllerIdentity* controller)
{
    const QString words = QString::fromLatin1(text);
    controller->protocol.fromString(words.section(' ', 1, 1));
    controller->model = words.section(' ', 2);
    return connectionText(*controller) == text.trimmed();
}

QString readRecording(const QString& file, QVector<RecordedLine>* lines)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return file + ": " + input.errorString();
    const QByteArray bytes = input.readAll();
    // The size tells fromUtf8() not to stop at a NUL byte.
    QStringList texts = QString::fromUtf8(bytes.constData(), bytes.size()).replace("\r\n", "\n").split('\n');
    const bool isCutOff = !texts.takeLast().isEmpty();
    QString reason = texts.value(0) + '\n' == recordingHeader ? QString() : "this is no recording";
    int number = 1;
    for (; reason.isEmpty() && number < texts.size(); ++number) {
        RecordedLine line{{}, true, {}, number + 1};
        reason = refusal(texts.at(number));
        if (!reason.isEmpty() || texts.at(number).isEmpty() || texts.at(number).startsWith('#'))
            continue;
        reason = readLine(texts.at(number), &line);
        lines->append(line);
    }
    if (reason.isEmpty() && isCutOff) {
        reason = "cut off: the last line has no line end";
        ++number;
    }
    ControllerIdentity controller;
    if (reason.isEmpty() && !readConnection(lines->value(0).text, &controller)) {
        reason = "it does not begin with a \"connect\"";
        number = lines->isEmpty() ? 2 : lines->first().number;
    }
    return reason.isEmpty() ? QString() : QString("%1:%2: %3").arg(file).arg(number).arg(reason);
}
