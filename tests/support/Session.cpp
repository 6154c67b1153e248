#include "Session.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QTableWidget>

SessionFile::SessionFile(const char* name)
{
    QFile file(QString(DATA_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    QByteArray list;
    const QByteArrayList lines =
        file.readAll().replace("\\s", " ").replace("\\t", "\t").replace("\\e", "\xE4").split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray key = line.left(line.indexOf(' '));
        const QByteArray value = line.mid(key.size() + 1);
        if (key == "list")
            list = value;
        else if (key == "+")
            lists[list].append(value);
        else if (key == "case")
            sessions.append({{"name", {value}}});
        else if (!key.isEmpty() && key != "#")
            sessions.last()[key] += expanded(value);
    }
}

/** The line itself; for "@NAME A|B" the lines of the list NAME, with A and B in place of %1 and %2. */
QByteArrayList SessionFile::expanded(const QByteArray& line) const
{
    if (!line.startsWith('@'))
        return {line};
    for (auto list = lists.begin(); list != lists.end(); ++list) {
        if (line != '@' + list.key() && !line.startsWith('@' + list.key() + ' '))
            continue;
        const QByteArrayList arguments = line.mid(list.key().size() + 2).split('|');
        QByteArrayList lines = list.value();
        for (QByteArray& expandedLine : lines) {
            for (int i = 0; i < arguments.size(); ++i)
                expandedLine.replace('%' + QByteArray::number(i + 1), arguments.at(i));
        }
        return lines;
    }
    return line == "@nothing" ? QByteArrayList() : QByteArrayList{"no list for " + line};
}

void addSessions(const char* name)
{
    QTest::addColumn<Session>("session");
    const SessionFile file(name);
    for (Session session : file.sessions) {
        if (!session.contains("protocol"))
            session["protocol"] = QByteArrayList{"1.23"};
        QTest::newRow(session.value("name").first()) << session;
    }
}

void act(LoadedModule& module, const QByteArray& action)
{
    const QByteArrayList words = action.split(' ');
    const QByteArray argument = action.mid(words.value(0).size() + words.value(1).size() + 2);
    if (words.at(0) == "key")
        QTest::keyClick(module.find<QWidget>(words.at(1)), Qt::Key(QKeySequence(QString(argument))[0]));
    else if (words.at(0) == "choose")
        module.user().choose(words.at(1), argument);
    else if (words.at(0) == "deselect")
        module.find<QComboBox>(words.at(1))->setCurrentIndex(-1);
    else if (words.at(0) == "click")
        module.user().clickCell(words.at(1).toInt(), argument.toInt());
    else if (words.at(0) == "delay")
        DialogUser::type(module.user().editDelay(words.at(1).toInt()), argument);
    else if (words.at(0) == "text")
        module.find<QTableWidget>("tableWidget_channels")->item(words.at(1).toInt(), 1)->setText(words.at(3));
    else if (words.at(0) == "take")
        delete module.find<QTableWidget>("tableWidget_channels")->takeItem(words.at(1).toInt(), argument.toInt());
    else if (words.at(0) == "answer")
        module.link.script(action.mid(7));
    else if (action == "poll")
        QMetaObject::invokeMethod(module.dialog(), "poll_input_frequency");
    else
        QFAIL("unknown action " + action);
}
