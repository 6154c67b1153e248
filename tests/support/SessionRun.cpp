#include "SessionRun.h"

#include "ControllerVocabulary.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QRegularExpression>
#include <QTableWidget>

#include <functional>

namespace {

Qt::Key keyOf(const QByteArray& name)
{
    return Qt::Key(QKeySequence(QString(name))[0]);
}

/** Walks round the dialog by Tab, then back. It must reach \a controls in this order, each with a spoken name. */
QString walk(const QDialog* dialog, const QByteArrayList& controls)
{
    QByteArrayList reached;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        for (int i = 0; i < controls.size(); ++i) {
            QWidget* focus = dialog->focusWidget();
            const QString spoken = QAccessible::queryAccessibleInterface(focus)->text(QAccessible::Name);
            reached.append(focus->objectName().toUtf8() + (spoken.isEmpty() ? " without a name" : ""));
            QTest::keyClick(focus, key, key == Qt::Key_Tab ? Qt::NoModifier : Qt::ShiftModifier);
        }
    }
    QByteArrayList expected = controls + controls.mid(0, 1);
    for (int i = controls.size() - 1; i > 0; --i)
        expected.append(controls.at(i));
    return difference(reached, expected);
}

/** Sends \a event as the window system does. */
void sendBySystem(QWidget* widget, QEvent* event)
{
    QSpontaneKeyEvent::setSpontaneous(event);
    QApplication::instance()->notify(widget, event);
}

void turnWheel(QWidget* widget)
{
    const QPoint center = widget->rect().center();
    QWidget* child = widget->childAt(center);
    QWheelEvent event(center, widget->mapToGlobal(center), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    sendBySystem(child ? child : widget, &event);
}

void minimize(QWidget* window)
{
    QHideEvent event;
    sendBySystem(window, &event);
}

} // namespace

QString act(LoadedModule& module, const SessionLine& line)
{
    static const QByteArrayList onWidgets = {"key", "choose", "deselect", "wheel", "press"};
    static const QByteArrayList onCells = {"click", "delay", "text", "take"};
    const QByteArrayList words = line.text.split(' ');
    const QByteArray& action = words.first();
    const int row = words.value(1).toInt();
    const int column = action == "delay" ? 1 : words.value(2).toInt();
    const DialogUser user = module.user();
    QDialog* dialog = module.dialog();
    auto* widget = module.find<QWidget>(words.value(1));
    auto* table = module.find<QTableWidget>("tableWidget_channels");
    const auto run = [&](const char* slot) { QMetaObject::invokeMethod(dialog, slot); };
    const auto leaveHidden = [&] { run(words.value(1) == "OK" ? "accept" : "reject"); };
    bool isDone = true;
    QString problem;
    const QMap<QByteArray, std::function<void()>> actions = {
        {"key", [&] { QTest::keyClick(widget, keyOf(words.value(2))); }},
        {"choose", [&] { isDone = user.choose(words.at(1), words.mid(2).join(' ')); }},
        {"wheel", [&] { turnWheel(widget); }},
        {"deselect", [&] { qobject_cast<QComboBox*>(widget)->setCurrentIndex(-1); }},
        {"click", [&] { user.clickCell(row, column); }},
        {"delay", [&] { DialogUser::type(user.editDelay(row), words.value(2), keyOf(words.value(3, "Tab"))); }},
        {"text", [&] { table->item(row, column)->setText(words.value(3)); }},
        {"take", [&] { delete table->takeItem(row, column); }},
        {"press", [&] { QTest::keySequence(dialog, QString(words.value(2))); }},
        {"walk", [&] { problem = walk(dialog, words.mid(1)); }},
        {"poll", [&] { run("poll_input_frequency"); }},
        {"answer", [&] { problem = module.link.script(line.text.mid(action.size() + 1), line.number); }},
        {"leave", [&] { dialog->isVisible() ? user.leave(words.value(1)) : leaveHidden(); }},
        {"done", [&] { dialog->done(words.value(1).toInt()); }},
        {"minimize", [&] { minimize(dialog); }},
        {"hide", [&] { dialog->hide(); }},
        {"activate", [&] { module.element->menu_entry->trigger(); }},
        {"delete-parent", [&] { delete module.parent; }},
        {"exit-module", [&] { module.loader.module()->exit_module(); }}};
    if (!actions.contains(action))
        return "action " + unknown(action, actions.keys());
    const bool isPossible = onWidgets.contains(action) ? widget && widget->isVisible() && widget->isEnabled()
                                                       : !onCells.contains(action) || table->item(row, column);
    const QWidget* focus = action == "press" ? widget : dialog->focusWidget();
    if (isPossible)
        actions.value(action)();
    if (action == "press" || action == "wheel")
        isDone = dialog->focusWidget() == focus;
    return isPossible && isDone ? problem : '"' + line.text + "\" cannot be done";
}

QString difference(const QByteArrayList& found, const QByteArrayList& expected, int* position)
{
    int i = 0;
    while (i < found.size() && i < expected.size() && found.at(i) == expected.at(i))
        ++i;
    if (position)
        *position = i;
    if (i == found.size() && i == expected.size())
        return {};
    const auto wanted = [&](int at) { return QString(expected.value(at, "(the end)")); };
    const auto came = [&](int at) { return QString(found.value(at, "(the end)")); };
    return QString("differ at number %1:\n    %2\n  - %3\n  + %4\n    then %5 / %6")
        .arg(QString::number(i + 1), i > 0 ? came(i - 1) : "(the beginning)", wanted(i), came(i), wanted(i + 1),
             came(i + 1));
}

QByteArrayList SessionRun::keys()
{
    QByteArrayList all;
    for (const char* key :
         {"protocol", "answer", "asks", "unasked", "shows", "report", "stops", "later", "user", "after", "sends", "ok",
          "cancel", "sends-report", "ok-report", "cancel-report", "ok-box", "during", "leaves"})
        all += QByteArrayList{key, QByteArray("again-") + key};
    return all;
}

QString SessionRun::problemOf(const Session& session)
{
    const QByteArrayList ways = {"OK", "Cancel", "Escape", "close"};
    const auto again = session.lines.lowerBound("again");
    QSet<int> asked;
    for (const QByteArray& way : session.lines.contains("leaves") ? QByteArrayList{session.text("leaves")} : ways) {
        SessionRun run(session);
        run.open("", way);
        if (again != session.lines.end() && again.key().startsWith("again"))
            run.open("again-", session.text("again-leaves", "OK"));
        if (!run.problem.isEmpty())
            return run.problem;
        asked += run.module.link.askedLines;
    }
    for (const char* key : {"answer", "later", "user", "again-answer", "again-later", "again-user"}) {
        for (const SessionLine& line : session.lines.value(key)) {
            const bool isAnswer = line.text.contains('=') && !line.text.contains("maybe ");
            if (isAnswer && !asked.contains(line.number))
                return session.problem("nothing asks for this answer: " + line.text, line.number);
        }
    }
    static const QRegularExpression silent("^(again-)?(protocol|answer|later|leaves)$");
    const QByteArrayList keys = session.lines.keys();
    const bool isSilent =
        std::all_of(keys.begin(), keys.end(), [](const QByteArray& key) { return QString(key).contains(silent); });
    return isSilent ? session.problem("the case does not say what is asked, shown or done") : QString();
}

/** One opening, as the lines whose keys begin with \a newPrefix say, and leaving it by \a newWay. */
void SessionRun::open(const QByteArray& newPrefix, const QByteArray& newWay)
{
    prefix = newPrefix;
    way = newWay;
    isOk = false;
    module.connectTo(session.text(prefix + "protocol", session.text("protocol", "newest")));
    answer("answer");
    interruptions = lines("during");
    module.link.during = [this](const QByteArray& text) { interrupt(text); };
    QObject::connect(module.dialog(), &QDialog::finished, &module.channel, [this] { interrupt("finished"); });
    const int result = module.open([this] { useAndLeave(); });
    demand(interruptions.isEmpty(), "nothing happens during " + interruptions.value(0).text,
           interruptions.value(0).number);
    if (result == -1)
        compareOpening();
    const bool isAccepted = isOk && module.dialog();
    const int expected = !lines("stops").isEmpty() ? -1 : isAccepted ? QDialog::Accepted : QDialog::Rejected;
    demand(result == expected, QString("update_and_exec() returns %1 instead of %2").arg(result).arg(expected));
    const QByteArray exit = isOk ? "ok" : "cancel";
    compareLines("commands after the opening", module.link.takeCommands(), lines("sends") + lines(exit));
    compareLines("reports after the opening", std::exchange(module.link.reports, {}),
                 lines("sends-report") + lines(exit + "-report"));
    compareLines("boxes", std::exchange(module.boxes, {}), lines(exit + "-box"));
}

/** What happens while the dialog is open. */
void SessionRun::useAndLeave()
{
    compareOpening();
    answer("later");
    const SessionLines actions = lines("user");
    for (const SessionLine& line : actions) {
        const QString undone = act(module, line);
        demand(undone.isEmpty(), undone, line.number);
    }
    for (int turn = 0; turn < 3; ++turn) // what waits is carried out in turns of the event loop: a source, then an exit
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
    SessionLines asked = lines("asks");
    const SessionLines leftOut = lines("unasked");
    for (const SessionLine& unasked : leftOut) {
        const auto isMeant = [&](const SessionLine& line) { return line.text.contains(unasked.text); };
        auto* const rest = std::remove_if(asked.begin(), asked.end(), isMeant);
        demand(rest != asked.end(), "no command of the opening contains \"" + unasked.text + '"', unasked.number);
        asked.erase(rest, asked.end());
    }
    const QByteArrayList commands = module.link.takeCommands();
    if (!lines("asks").isEmpty())
        compareLines("commands of the opening", commands, asked);
    compareLines("reports of the opening", std::exchange(module.link.reports, {}), lines("report"));
    compareWidgets("shows");
}

void SessionRun::compareWidgets(const QByteArray& key)
{
    const SessionLines expected = lines(key);
    for (const SessionLine& line : expected) {
        const QByteArray name = line.text.left(line.text.indexOf(':'));
        const QByteArray content = module.see(name);
        const QByteArray found = name + ':' + (content.isEmpty() ? "" : " ") + content;
        demand(found == line.text, "expected " + line.text + "\n  found    " + found, line.number);
    }
}

void SessionRun::compareLines(const QString& what, const QByteArrayList& found, const SessionLines& expected)
{
    QByteArrayList texts;
    for (const SessionLine& line : expected)
        texts.append(line.text);
    int position = 0;
    const QString problem = difference(found, texts, &position);
    demand(problem.isEmpty(), QString("leaving by %1, %2 %3").arg(QString(way), what, problem),
           expected.value(position, {{}, 0}).number);
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

/** Gives the controller the answers in the lines with \a key. */
void SessionRun::answer(const QByteArray& key)
{
    const SessionLines changes = lines(key);
    for (const SessionLine& line : changes) {
        const QString fault = module.link.script(line.text, line.number);
        demand(fault.isEmpty(), fault, line.number);
    }
}

void SessionRun::demand(bool condition, const QString& otherwise, int line)
{
    if (!condition && problem.isEmpty())
        problem = session.problem(otherwise, line);
}
