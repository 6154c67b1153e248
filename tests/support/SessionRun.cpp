#include "SessionRun.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableWidget>

namespace {

QByteArrayList widgetNames(const QDialog* dialog)
{
    QByteArrayList names;
    const QStringList lines = textOfDialog(dialog);
    for (const QString& line : lines)
        names.append(line.section(':', 0, 0).toUtf8());
    return names;
}

QString doneUnless(bool isDone, const QString& otherwise)
{
    return isDone ? QString() : otherwise;
}

QString actOnWidget(const LoadedModule& module, const QByteArrayList& words, const QByteArray& argument)
{
    auto* widget = module.find<QWidget>(words.value(1));
    if (!widget)
        return "widget " + unknown(words.value(1), widgetNames(module.dialog()));
    if (!widget->isVisible() || !widget->isEnabled())
        return words.at(1) + " is hidden or disabled";
    auto* box = qobject_cast<QComboBox*>(widget);
    if (words.at(0) == "choose")
        return doneUnless(box && module.user().choose(words.at(1), argument), "there is no item \"" + argument + '"');
    if (words.at(0) == "key")
        QTest::keyClick(widget, Qt::Key(QKeySequence(QString(argument))[0]));
    else if (box)
        box->setCurrentIndex(-1);
    return {};
}

QString actOnCell(const LoadedModule& module, const QByteArrayList& words, const QByteArray& argument)
{
    auto* table = module.find<QTableWidget>("tableWidget_channels");
    const int row = words.value(1).toInt();
    if (words.at(0) == "delay") {
        QDoubleSpinBox* editor = module.user().editDelay(row);
        DialogUser::type(editor, argument);
        return doneUnless(editor, "there is no delay to edit in row " + words.value(1));
    }
    const int column = words.value(2).toInt();
    QTableWidgetItem* item = table->item(row, column);
    if (!item)
        return "there is no cell " + words.value(1) + ' ' + words.value(2);
    if (words.at(0) == "click")
        module.user().clickCell(row, column);
    else if (words.at(0) == "text")
        item->setText(words.value(3));
    else
        delete table->takeItem(row, column);
    return {};
}

} // namespace

QString act(LoadedModule& module, const QByteArray& action, int line)
{
    static const QByteArrayList onWidgets = {"key", "choose", "deselect"};
    static const QByteArrayList onCells = {"click", "delay", "text", "take"};
    const QByteArrayList words = action.split(' ');
    const QByteArray argument = action.mid(words.at(0).size() + words.value(1).size() + 2);
    if (onWidgets.contains(words.at(0)))
        return actOnWidget(module, words, argument);
    if (onCells.contains(words.at(0)))
        return actOnCell(module, words, argument);
    if (words.at(0) == "answer")
        module.link.script(action.mid(7), line);
    else if (action == "poll")
        QMetaObject::invokeMethod(module.dialog(), "poll_input_frequency");
    else
        return "action " + unknown(words.at(0), onWidgets + onCells + QByteArrayList{"answer", "poll"});
    return {};
}

SessionRun::SessionRun(const Session& session, const QByteArray& way)
    : session(session), way(way), module(session.text("protocol"))
{
    run();
}

void SessionRun::run()
{
    answer("answer");
    const int result = module.open([this] {
        compareOpening();
        answer("later");
        actAll("user");
        compareWidgets("after");
        leave();
    });
    demand((result == -1) == session.lines.contains("stops"),
           "the dialog is " + QString(result < 0 ? "not " : "") + "shown");
    if (result == -1)
        return compareOpening();
    demand(result == int(isOk ? QDialog::Accepted : QDialog::Rejected), QString("the result is %1").arg(result));
    const QByteArray left = isOk ? "ok" : "cancel";
    const auto both = [&](const QByteArray& suffix) {
        return session.lines.value("sends" + suffix) + session.lines.value(left + suffix);
    };
    compareLines("commands after the opening", module.link.commands, both(""));
    compareLines("reports after the opening", module.link.reports, both("-report"));
    compareLines("boxes", module.boxes, session.lines.value(left + "-box"));
    if (session.lines.contains("again") || session.lines.contains("again-protocol"))
        openAgain();
}

QString SessionRun::problemOf(const Session& session)
{
    QSet<int> asked;
    for (const char* way : {"OK", "Cancel", "Escape", "close"}) {
        const SessionRun run(session, way);
        if (!run.problem().isEmpty())
            return run.problem();
        asked += run.askedLines();
    }
    for (const char* key : {"answer", "later", "again", "user", "again-user"}) {
        for (const SessionLine& line : session.lines.value(key)) {
            const bool isAnswer = !QByteArray(key).endsWith("user") || line.text.startsWith("answer ");
            if (isAnswer && !line.text.contains("maybe ") && !asked.contains(line.number))
                return session.problem("nothing asks for this answer: " + line.text, line.number);
        }
    }
    return {};
}

void SessionRun::leave()
{
    isOk = way == "OK" && module.see("pushButton_Ok") != " off";
    module.user().leave(isOk || way != "OK" ? way : "Cancel");
}

void SessionRun::openAgain()
{
    module.versions = backend(session.text("again-protocol", session.text("protocol")));
    answer("again");
    const bool isShown = module.open([this] {
        compareWidgets("again-shows");
        module.link.takeCommands();
        actAll("again-user");
        module.user().leave(session.text("again-leave", "OK"));
    }) >= 0;
    demand(isShown, "the second opening does not show the dialog");
    compareLines("commands after the second opening", module.link.commands, session.lines.value("again-sends"));
}

void SessionRun::compareOpening()
{
    SessionLines asked = session.lines.value("asks");
    for (const SessionLine& unasked : session.lines.value("unasked")) {
        const auto isMeant = [&](const SessionLine& line) { return line.text.contains(unasked.text); };
        const auto rest = std::remove_if(asked.begin(), asked.end(), isMeant);
        demand(rest != asked.end(), "no command of the opening contains \"" + unasked.text + '"', unasked.number);
        asked.erase(rest, asked.end());
    }
    const QByteArrayList commands = module.link.takeCommands();
    if (session.lines.contains("asks"))
        compareLines("commands of the opening", commands, asked);
    compareLines("reports of the opening", module.link.takeReports(), session.lines.value("report"));
    compareWidgets("shows");
}

void SessionRun::compareWidgets(const QByteArray& key)
{
    for (const SessionLine& line : session.lines.value(key)) {
        const QByteArray name = line.text.left(line.text.indexOf(':'));
        if (!module.find<QWidget>(name))
            return demand(false, "widget " + unknown(name, widgetNames(module.dialog())), line.number);
        const QByteArray content = module.see(name);
        const QByteArray found = name + ':' + (content.isEmpty() ? "" : " ") + content;
        demand(found == line.text, "expected " + line.text + "\n  found    " + found, line.number);
    }
}

/** Names the first line that differs, with its neighbours: "-" is what was expected, "+" what came in its place. */
void SessionRun::compareLines(const QString& what, const QByteArrayList& found, const SessionLines& expected)
{
    int i = 0;
    while (i < found.size() && i < expected.size() && found.at(i) == expected.at(i).text)
        ++i;
    if (i == found.size() && i == expected.size())
        return;
    const auto wanted = [&](int at) { return at < expected.size() ? QString(expected.at(at).text) : "(the end)"; };
    const auto came = [&](int at) { return at < found.size() ? QString(found.at(at)) : "(the end)"; };
    QStringList lines = {QString("leaving by %1, %2 differ at number %3:").arg(QString(way), what).arg(i + 1)};
    if (i > 0)
        lines.append("    " + came(i - 1));
    lines += {"  - " + wanted(i), "  + " + came(i), "  next expected " + wanted(i + 1) + ", next found " + came(i + 1)};
    demand(false, lines.join('\n'), i < expected.size() ? expected.at(i).number : 0);
}

void SessionRun::answer(const QByteArray& key)
{
    for (const SessionLine& line : session.lines.value(key))
        module.link.script(line.text, line.number);
}

void SessionRun::actAll(const QByteArray& key)
{
    for (const SessionLine& line : session.lines.value(key)) {
        const QString problem = act(module, line.text, line.number);
        demand(problem.isEmpty(), "\"" + line.text + "\" cannot be done: " + problem, line.number);
    }
}

void SessionRun::demand(bool condition, const QString& otherwise, int line)
{
    if (!condition && firstProblem.isEmpty())
        firstProblem = session.problem(otherwise, line);
}
