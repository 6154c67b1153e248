#include "SessionRun.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableWidget>

namespace {

QString unknownWidget(const LoadedModule& module, const QByteArray& name)
{
    QByteArrayList names;
    const QStringList lines = textOfDialog(module.dialog());
    for (const QString& line : lines)
        names.append(line.section(':', 0, 0).toUtf8());
    return "widget " + unknown(name, names);
}

bool actOnWidget(const LoadedModule& module, const QByteArrayList& words)
{
    auto* widget = module.find<QWidget>(words.at(1));
    auto* box = qobject_cast<QComboBox*>(widget);
    const QByteArray argument = words.mid(2).join(' ');
    if (!widget->isVisible() || !widget->isEnabled())
        return false;
    if (words.at(0) == "choose")
        return module.user().choose(words.at(1), argument);
    if (words.at(0) == "key")
        QTest::keyClick(widget, Qt::Key(QKeySequence(QString(argument))[0]));
    else
        box->setCurrentIndex(-1);
    return true;
}

bool actOnCell(const LoadedModule& module, const QByteArrayList& words)
{
    auto* table = module.find<QTableWidget>("tableWidget_channels");
    const int row = words.value(1).toInt();
    const int column = words.value(2).toInt();
    QTableWidgetItem* item = table->item(row, words.at(0) == "delay" ? 1 : column);
    if (!item)
        return false;
    if (words.at(0) == "delay")
        DialogUser::type(module.user().editDelay(row), words.value(2));
    else if (words.at(0) == "click")
        module.user().clickCell(row, column);
    else if (words.at(0) == "text")
        item->setText(words.value(3));
    else
        delete table->takeItem(row, column);
    return true;
}

} // namespace

QString act(LoadedModule& module, const SessionLine& line)
{
    static const QByteArrayList onWidgets = {"key", "choose", "deselect"};
    static const QByteArrayList onCells = {"click", "delay", "text", "take"};
    const QByteArrayList words = line.text.split(' ');
    const QString undone = '"' + line.text + "\" cannot be done";
    if (onWidgets.contains(words.at(0)) && !module.find<QWidget>(words.value(1)))
        return unknownWidget(module, words.value(1));
    if (onWidgets.contains(words.at(0)))
        return actOnWidget(module, words) ? QString() : undone;
    if (onCells.contains(words.at(0)))
        return actOnCell(module, words) ? QString() : undone;
    if (words.at(0) == "leave" && module.dialog()->isVisible())
        module.user().leave(words.value(1));
    else if (words.at(0) == "leave")
        QMetaObject::invokeMethod(module.dialog(), words.value(1) == "OK" ? "accept" : "reject");
    else if (words.at(0) == "done")
        module.dialog()->done(words.value(1).toInt());
    else if (words.at(0) == "activate")
        module.element->menu_entry->trigger();
    else if (words.at(0) == "answer")
        module.link.script(line.text.mid(7), line.number);
    else if (line.text != "poll")
        return "action "
               + unknown(words.at(0),
                         onWidgets + onCells + QByteArrayList{"answer", "poll", "leave", "done", "activate"});
    else
        QMetaObject::invokeMethod(module.dialog(), "poll_input_frequency");
    return {};
}

QString SessionRun::problemOf(const Session& session)
{
    QSet<int> asked;
    const QByteArrayList ways = {"OK", "Cancel", "Escape", "close"};
    for (const QByteArray& way : session.lines.contains("leaves") ? QByteArrayList{session.text("leaves")} : ways) {
        const SessionRun run(session, way);
        if (!run.problem.isEmpty())
            return run.problem;
        asked += run.module.link.askedLines;
    }
    for (const char* key : {"answer", "later", "again", "user", "again-user"}) {
        for (const SessionLine& line : session.lines.value(key)) {
            const bool isAnswer = line.text.contains('=') && !line.text.contains("maybe ");
            if (isAnswer && !asked.contains(line.number))
                return session.problem("nothing asks for this answer: " + line.text, line.number);
        }
    }
    return {};
}

SessionRun::SessionRun(const Session& session, const QByteArray& way)
    : session(session), way(way), module(session.text("protocol"))
{
    module.link.script(session.lines.value("answer"));
    interruptions = session.lines.value("during");
    module.link.during = [this](const QByteArray& text) { interrupt(text); };
    const int result = module.open([&] {
        compareOpening();
        module.link.script(session.lines.value("later"));
        actAll("user");
        if (session.lines.contains("during"))
            QTest::qWait(1); // what waits is carried out from the event loop
        compareWidgets("after");
        isOk = way == "OK" && module.see("pushButton_Ok") != " off";
        if (module.dialog()->isVisible())
            module.user().leave(isOk || way != "OK" ? way : "Cancel");
    });
    demand(interruptions.isEmpty(), "nothing happens during " + interruptions.value(0).text,
           interruptions.value(0).number);
    if (result == -1)
        compareOpening();
    const int expected = session.lines.contains("stops") ? -1 : isOk ? QDialog::Accepted : QDialog::Rejected;
    demand(result == expected, QString("update_and_exec() returns %1 instead of %2").arg(result).arg(expected));
    const auto left = [&](const QByteArray& suffix) {
        return session.lines.value("sends" + suffix) + session.lines.value((isOk ? "ok" : "cancel") + suffix);
    };
    compareLines("commands after the opening", module.link.commands, left(""));
    compareLines("reports after the opening", module.link.reports, left("-report"));
    compareLines("boxes", module.boxes, left("-box"));
    if (session.lines.contains("again") || session.lines.contains("again-protocol"))
        openAgain();
}

void SessionRun::openAgain()
{
    module.versions = backend(session.text("again-protocol", session.text("protocol")));
    module.link.script(session.lines.value("again"));
    const int result = module.open([this] {
        compareWidgets("again-shows");
        module.link.takeCommands();
        actAll("again-user");
        module.user().leave(session.text("again-leave", "OK"));
    });
    demand(result >= 0, "the second opening does not show the dialog");
    compareLines("commands after the second opening", module.link.commands, session.lines.value("again-sends"));
}

void SessionRun::compareOpening()
{
    SessionLines asked = session.lines.value("asks");
    for (const SessionLine& unasked : session.lines.value("unasked")) {
        const auto isMeant = [&](const SessionLine& line) { return line.text.contains(unasked.text); };
        auto* const rest = std::remove_if(asked.begin(), asked.end(), isMeant);
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
        const bool isKnown = module.find<QWidget>(name);
        demand(isKnown, unknownWidget(module, name), line.number);
        const QByteArray content = isKnown ? module.see(name) : QByteArray();
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
    const SessionLine end = {"(the end)", 0};
    const auto wanted = [&](int at) { return QString(expected.value(at, end).text); };
    const auto came = [&](int at) { return QString(found.value(at, end.text)); };
    const QString message = QString("leaving by %1, %2 differ at number %3:\n    %4\n  - %5\n  + %6\n    then %7 / %8");
    demand(i == found.size() && i == expected.size(),
           message.arg(QString(way), what, QString::number(i + 1), i > 0 ? came(i - 1) : "(the beginning)", wanted(i),
                       came(i), wanted(i + 1), came(i + 1)),
           expected.value(i, end).number);
}

/** Does what a line "during TEXT -> ACTION" says, once, in the first command or report that is this text. */
void SessionRun::interrupt(const QByteArray& text)
{
    const auto isMeant = [&](const SessionLine& line) { return line.text.startsWith(text + " -> "); };
    auto* const line = std::find_if(interruptions.begin(), interruptions.end(), isMeant);
    if (line == interruptions.end())
        return;
    const SessionLine action = {line->text.mid(text.size() + 4), line->number};
    interruptions.erase(line);
    const QString undone = act(module, action);
    demand(undone.isEmpty(), undone, action.number);
    QCoreApplication::processEvents();
}

void SessionRun::actAll(const QByteArray& key)
{
    for (const SessionLine& line : session.lines.value(key)) {
        const QString undone = act(module, line);
        demand(undone.isEmpty(), undone, line.number);
    }
}

void SessionRun::demand(bool condition, const QString& otherwise, int line)
{
    if (!condition && problem.isEmpty())
        problem = session.problem(otherwise, line);
}
