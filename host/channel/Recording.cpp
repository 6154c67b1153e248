#include "Recording.h"

#include "WireText.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/** Reads one line. Returns an error message, or an empty string on success. */
QString readLine(const QString& text, RecordedLine* line)
{
    static const QRegularExpression form(R"(^\d+\.?\d* ((\S+) .*?)( ->(?: (.*))?| failed)$)");
    QString fault = textFault(text);
    if (!fault.isEmpty())
        return fault;
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return R"("SECONDS OPERATION COMMAND -> ANSWER" or "... failed" is expected)";
    line->text = unescaped(match.captured(1));
    line->isAnswered = match.captured(3) != " failed";
    line->answer = unescaped(match.captured(4));
    ControllerIdentity controller;
    if (match.captured(2) == "connect")
        return readConnection(line->text, &controller)
                   ? QString()
                   : "a protocol version such as 1.23.0 is expected after \"connect\"";
    const bool isKnown = isOperation(match.captured(2).toLatin1());
    return isKnown ? QString() : QString("unknown operation \"%1\"").arg(match.captured(2));
}

} // namespace

QByteArray RecordedLine::toLine(qint64 milliseconds) const
{
    const QString outcome = isAnswered ? " -> " + escaped(answer) : " failed";
    return QByteArray::number(static_cast<double>(milliseconds) / 1000.0, 'f', 3) + ' '
           + (escaped(text) + outcome).toUtf8() + '\n';
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
    return connectionText(*controller) == text.trimmed() && !words.section(' ', 1, 1).contains('-');
}

QString readRecording(const QString& file, QVector<RecordedLine>* lines)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return file + ": " + input.errorString();
    QStringList texts = linesOf(input.readAll());
    const bool isCutOff = !texts.takeLast().isEmpty();
    QString reason = texts.value(0) + '\n' == recordingHeader ? QString() : "not a recording";
    int number = 1;
    for (; reason.isEmpty() && number < texts.size(); ++number) {
        if (texts.at(number).isEmpty() || texts.at(number).startsWith('#'))
            continue;
        RecordedLine line{{}, true, {}, number + 1};
        reason = readLine(texts.at(number), &line);
        lines->append(line);
    }
    if (reason.isEmpty() && isCutOff) {
        reason = "cut off: the last line has no line end";
        ++number;
    }
    ControllerIdentity controller;
    if (reason.isEmpty() && !readConnection(lines->value(0).text, &controller)) {
        reason = "a \"connect\" is expected before all commands";
        number = lines->isEmpty() ? 2 : lines->first().number;
    }
    return reason.isEmpty() ? QString() : QString("%1:%2: %3").arg(file).arg(number).arg(reason);
}
