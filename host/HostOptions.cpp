#include "HostOptions.h"

#include "ControllerFile.h"
#include "Faults.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>

#include <cstdio>

namespace {

void say(FILE* stream, const QString& text)
{
    static_cast<void>(std::fputs(qPrintable(text), stream));
}

} // namespace

HostOptions::HostOptions(const QString& description)
{
    parser.setApplicationDescription(description);
    parser.addOption({{"h", "help"}, "Shows this help."});
    parser.addOption({{"v", "version"}, "Shows the version."});
    parser.addOption({"list", "Lists the controllers that have a name."});
    parser.addOption({"controller", "Simulates <controller>: a name of --list, or a file (JSON).", "controller"});
    parser.addOption({"protocol", "Lets the controller speak protocol <version>, such as 0.12.7 or 1.23.", "version"});
    parser.addOption({"plugin", "Loads the module from <file>.", "file"});
    parser.addOption({"fail", "Fails every command that the regular expression <pattern> is found in.", "pattern"});
    parser.addOption({"latency", "Lets each command take <ms> longer, 0 to 5000.", "ms"});
    parser.addOption({"record", "Writes every command into <file>.", "file"});
    parser.addOption({"replay", "Answers from the recording <file> instead of a simulated controller.", "file"});
}

bool HostOptions::parse(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (!parser.parse(QCoreApplication::arguments()))
        return end(fail(parser.errorText() + " See --help."));
    if (!parser.positionalArguments().isEmpty())
        return end(fail("Unexpected argument '" + parser.positionalArguments().constFirst() + "'. See --help."));
    if (parser.isSet("help")) {
        say(stdout, parser.helpText());
        return end(0);
    }
    if (parser.isSet("version")) {
        say(stdout, QCoreApplication::applicationName() + " " HOST_VERSION "\n");
        return end(0);
    }
    if (parser.isSet("list"))
        return end(listControllers());
    host.pluginFile = parser.value("plugin");
    host.record = parser.value("record");
    host.replay = parser.value("replay");
    return readController() && readProtocol() && readFaults() && checkRecordings();
}

QString HostOptions::controllerFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" CONTROLLER_DIR);
}

/** Prints name and description of each controller in the folder, unless one of the files is broken. */
int HostOptions::listControllers()
{
    QMap<QString, QString> descriptions;
    int width = 0;
    const QFileInfoList files = QDir(controllerFolder()).entryInfoList({"*.json"}, QDir::Files | QDir::CaseSensitive);
    for (const QFileInfo& file : files) {
        ControllerState listed = ControllerState::builtIn();
        QString error;
        if (!readControllerFile(file.filePath(), &listed, &error))
            return fail(error);
        const QString name = file.completeBaseName();
        descriptions[name] = listed.description;
        width = qMax(width, name.size());
    }
    for (auto it = descriptions.constBegin(); it != descriptions.constEnd(); ++it)
        say(stdout, it.key().leftJustified(width) + "  " + it.value() + '\n');
    return files.isEmpty() ? fail(controllerFolder() + ": no controller files") : 0;
}

bool HostOptions::readController()
{
    if (!parser.isSet("controller"))
        return true;
    const QString wanted = parser.value("controller");
    const bool isName = !wanted.contains('/') && !wanted.endsWith(".json");
    const QString file = isName ? controllerFolder() + '/' + wanted + ".json" : wanted;
    if (isName && !QFileInfo::exists(file))
        return end(fail("--controller " + wanted + ": no such controller, see --list"));
    QString error;
    return readControllerFile(file, &host.state, &error) || end(fail(error));
}

bool HostOptions::readProtocol()
{
    const QString text = parser.value("protocol");
    bool isVersion = !parser.isSet("protocol");
    if (!isVersion)
        host.state.protocol.fromString(text, &isVersion);
    return isVersion || end(fail("--protocol " + text + ": a version such as 1.23 or 1.23.0 is expected"));
}

bool HostOptions::readFaults()
{
    host.failing.setPattern(parser.value("fail"));
    if (!host.failing.isValid())
        return end(fail("--fail " + parser.value("fail") + ": " + host.failing.errorString()));
    const QString text = parser.value("latency");
    bool isLatency = !parser.isSet("latency");
    if (!isLatency)
        host.latency = text.toInt(&isLatency);
    if (isLatency && host.latency >= 0 && host.latency <= Faults::maximumLatency)
        return true;
    return end(fail("--latency " + text + ": milliseconds from 0 to 5000 are expected"));
}

bool HostOptions::checkRecordings()
{
    for (const char* option : {"record", "replay"}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return end(fail(QString("--%1: a file is expected").arg(QLatin1String(option))));
    }
    if (!parser.isSet("replay"))
        return true;
    if (parser.isSet("fail"))
        return end(fail("--fail: a replay fails what was recorded as failed"));
    if (QFileInfo(host.record) == QFileInfo(host.replay))
        return end(fail(host.record + ": --record would overwrite what --replay reads"));
    return true;
}

bool HostOptions::end(int exitStatus)
{
    status = exitStatus;
    return false;
}

int HostOptions::fail(const QString& message)
{
    say(stderr, QCoreApplication::applicationName() + ": " + message + '\n');
    return 2;
}
