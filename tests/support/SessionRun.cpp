#include "SessionRun.h"

#include "ControllerText.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableWidget>

#include <functional>

namespace {

Qt::Key keyOf(const QByteArray& name)
{
    return Qt::Key(QKeySequence(QString(name))[0]);
}

/** Walks round the dialog by Tab. Returns an error message unless it reaches \a controls in order, each with a name. */
QString walk(const QDialog* dialog, const QByteArrayList& controls)
{
    QByteArrayList reached;
    for (int i = 0; i <= controls.size(); ++i) {
        QWidget* focus = dialog->focusWidget();
        const QString spoken = QAccessible::queryAccessibleInterface(focus)->text(QAccessible::Name);
        reached.append(focus->objectName().toUtf8() + (spoken.isEmpty() ? " without a name" : ""));
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return difference(reached, controls + controls.mid(0, 1));
}

/** Sends \a event as the window system does. With sendEvent() it would count as an event of the program. */
void sendAsSystem(QWidget* widget, QEvent&& event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(widget, &event);
}

void turnWheel(QWidget* widget)
{
    const QPoint center = widget->rect().center();
    QWidget* child = widget->childAt(center);
    sendAsSystem(child ? child : widget, QWheelEvent(center, widget->mapToGlobal(center), {}, {0, 120}, Qt::NoButton,
                                                     Qt::NoModifier, Qt::NoScrollPhase, false));
}

} // namespace

QString act(LoadedModule& module, const QByteArray& line)
{
    static const QByteArrayList onWidgets = {"key", "choose", "wheel", "press"};
    const QByteArrayList words = line.split(' ');
    const QByteArray& action = words.first();
    const int row = words.value(1).toInt();
    const int column = words.value(2).toInt();
    const DialogUser user = module.user();
    QDialog* dialog = module.dialog();
    auto* widget = module.find<QWidget>(words.value(1));
    auto* table = module.find<QTableWidget>("tableWidget_channels");
    bool isDone = true;
    QString problem;
    const QMap<QByteArray, std::function<void()>> actions = {
        {"key", [&] { QTest::keyClick(widget, keyOf(words.value(2))); }},
        {"choose", [&] { isDone = user.choose(words.at(1), words.mid(2).join(' ')); }},
        {"wheel", [&] { turnWheel(widget); }},
        {"deselect", [&] { module.find<QComboBox>(words.value(1))->setCurrentIndex(-1); }},
        {"click", [&] { user.clickCell(row, column); }},
        {"delay", [&] { DialogUser::type(user.editDelay(row), words.value(2), keyOf(words.value(3, "Tab"))); }},
        {"text", [&] { table->item(row, column)->setText(words.value(3)); }},
        {"take", [&] { delete table->takeItem(row, column); }},
        {"press", [&] { QTest::keySequence(dialog, QString(words.value(2))); }},
        {"walk", [&] { problem = walk(dialog, words.mid(1)); }},
        {"poll", [&] { QMetaObject::invokeMethod(dialog, "poll_input_frequency"); }},
        {"answer", [&] { problem = module.link.script({line.mid(action.size() + 1)}); }},
        {"leave", [&] { user.leave(words.value(1)); }},
        {"done", [&] { dialog->done(words.value(1).toInt()); }},
        {"exec", [&] { dialog->exec(); }},
        {"show", [&] { dialog->show(); }},
        {"minimize", [&] { sendAsSystem(dialog, QHideEvent()); }},
        {"hide", [&] { dialog->hide(); }},
        {"activate", [&] { module.element->menu_entry->trigger(); }},
        {"delete-parent", [&] { delete module.parent; }},
        {"exit-module", [&] { module.loader.module()->exit_module(); }}};
    const bool isUsable = !onWidgets.contains(action) || (widget && widget->isVisible() && widget->isEnabled());
    const bool isPossible = isUsable && actions.contains(action);
    const QWidget* focus = action == "press" ? widget : dialog->focusWidget();
    if (isPossible)
        actions.value(action)();
    if (action == "press" || action == "wheel")
        isDone = dialog->focusWidget() == focus;
    return isPossible && isDone ? problem : '"' + line + "\" cannot be done";
}

QString difference(const QByteArrayList& found, const QByteArrayList& expected)
{
    int i = 0;
    while (i < found.size() && i < expected.size() && found.at(i) == expected.at(i))
        ++i;
    if (found == expected)
        return {};
    return QString("differ at number %1\n  expected: %2\n  found:    %3")
        .arg(QString::number(i + 1), QString(expected.value(i, "(the end)")), QString(found.value(i, "(the end)")));
}

/** Returns the first answer of the case that no command in \a asked reads, or an empty string. */
static QByteArray unaskedAnswer(const Session& session, const QByteArray& asked)
{
    const QByteArrayList answers = session.lines.value("answer") + session.lines.value("again-answer");
    for (const QByteArray& line : answers) {
        ControllerTable table;
        changeTable(&table, QString::fromLatin1(line));
        const auto isAsked = [&](const AnswerRow& row) {
            return asked.contains(row.command + (row.command.startsWith("set ") ? "" : "\n"));
        };
        if (std::none_of(table.rows().begin(), table.rows().end(), isAsked))
            return line;
    }
    return {};
}

QString SessionRun::problemOf(const Session& session)
{
    if (session.lines.size() == 1) // the protocol
        return session.place + ": the case has no lines";
    const QByteArrayList ways = {"OK", "Cancel", "Escape", "close"};
    const auto again = session.lines.lowerBound("again-");
    const bool isTwice = again != session.lines.end() && again.key().startsWith("again-");
    QByteArray asked;
    for (const QByteArray& way : session.lines.value("leaves", ways)) {
        SessionRun run(session, way);
        run.open();
        if (isTwice) {
            run.prefix = "again-";
            run.way = session.text("again-leaves", "OK");
            run.open();
        }
        if (!run.problem.isEmpty())
            return session.place + ": leaving by " + way + ": " + run.problem;
        asked += run.asked;
    }
    const QByteArray unasked = unaskedAnswer(session, asked);
    return unasked.isEmpty() ? QString() : session.place + ": nothing asks for " + unasked;
}

/** Opens and closes the dialog once, by the lines whose keys start with the prefix. */
void SessionRun::open()
{
    isOk = false;
    module.connectTo(session.text(prefix + "protocol", session.text("protocol")));
    keep(module.link.script(lines("answer")));
    const QByteArrayList before = lines("before");
    for (const QByteArray& line : before)
        keep(act(module, line));
    interruptions = lines("during");
    module.link.during = [this](const QByteArray& text) { interrupt(text); };
    QObject::connect(module.dialog(), &QDialog::finished, &module.channel, [this] { interrupt("finished"); });
    const int result = module.open([this] { useAndLeave(); });
    if (!interruptions.isEmpty())
        keep("nothing happens during " + interruptions.first());
    if (result == -1)
        compareOpening();
    const bool isAccepted = isOk && module.dialog();
    const int expected = !lines("stops").isEmpty() ? -1 : isAccepted ? QDialog::Accepted : QDialog::Rejected;
    if (result != expected)
        keep(QString("update_and_exec() returns %1 instead of %2").arg(result).arg(expected));
    const QByteArray exit = isOk ? "ok" : "cancel";
    compare("commands after the opening", module.link.takeCommands(), lines("sends") + lines(exit));
    compare("reports after the opening", std::exchange(module.link.reports, {}),
            lines("sends-report") + lines(exit + "-report"));
    compare("boxes", std::exchange(module.boxes, {}), lines(exit + "-box"));
}

/** Compares the opening, carries out the actions of the user and closes the dialog. */
void SessionRun::useAndLeave()
{
    compareOpening();
    const QByteArrayList actions = lines("user");
    for (const QByteArray& line : actions)
        keep(act(module, line));
    for (int turn = 0; turn < 3; ++turn) // requests that wait need turns of the event loop: a source, then closing
        QCoreApplication::processEvents();
    if (!module.dialog())
        return;
    compareWidgets("after");
    isOk = way == "OK" && module.see("pushButton_Ok") != " off";
    if (module.dialog()->isVisible())
        module.user().leave(isOk || way != "OK" ? way : "Cancel");
}

void SessionRun::compareOpening()
{
    QByteArrayList expected = lines("asks");
    const QByteArrayList leftOut = lines("unasked");
    for (const QByteArray& text : leftOut) {
        const auto isMeant = [&](const QByteArray& line) { return line.contains(text); };
        expected.erase(std::remove_if(expected.begin(), expected.end(), isMeant), expected.end());
    }
    const QByteArrayList commands = module.link.takeCommands();
    if (!lines("asks").isEmpty())
        compare("commands of the opening", commands, expected);
    compare("reports of the opening", std::exchange(module.link.reports, {}), lines("report"));
    compareWidgets("shows");
}

void SessionRun::compareWidgets(const QByteArray& key)
{
    const QByteArrayList expected = lines(key);
    QByteArrayList found;
    for (const QByteArray& line : expected) {
        const QByteArray name = line.left(line.indexOf(':'));
        const QByteArray content = module.see(name);
        found.append(name + ':' + (content.isEmpty() ? "" : " ") + content);
    }
    compare("widgets", found, expected);
}

void SessionRun::compare(const QString& what, const QByteArrayList& found, const QByteArrayList& expected)
{
    if (found != expected)
        keep(what + ' ' + difference(found, expected));
}

/** Carries out the action of a line "during TEXT -> ACTION" in the first command or report with this text. */
void SessionRun::interrupt(const QByteArray& text)
{
    asked += text + '\n';
    const auto isMeant = [&](const QByteArray& line) { return line.startsWith(text + " -> "); };
    const auto line = std::find_if(interruptions.begin(), interruptions.end(), isMeant);
    if (line == interruptions.end())
        return;
    const QByteArray action = line->mid(text.size() + 4);
    interruptions.erase(line);
    keep(act(module, action));
    QCoreApplication::processEvents();
}

void SessionRun::keep(const QString& found)
{
    if (problem.isEmpty())
        problem = found;
}
