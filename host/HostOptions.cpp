#include "HostOptions.h"

#include "Console.h"
#include "ControllerText.h"
#include "Faults.h"
#include "ModuleLoader.h"

#include <QCoreApplication>
#include <QTranslator>

static bool printed(const QString& text)
{
    print(text);
    return false;
}

HostOptions::HostOptions(const QString& description, ReplayedController replayed) : replayed(replayed)
{
    parser.setApplicationDescription(description);
    parser.addOption({{"h", "help"}, "Shows this help."});
    parser.addOption({{"v", "version"}, "Shows the version."});
    parser.addOption({"list", "Lists the named controllers."});
    parser.addOption({"controller", "Simulates <controller>: a name of --list, a controller file or a recording.",
                      "controller", "full"});
    parser.addOption({"protocol", "Sets the controller's protocol to <version>, such as 0.12.7 or 1.23.", "version"});
    parser.addOption({"plugin", "Loads the module from <file>.", "file"});
    parser.addOption({"language", "Shows the module in <language>, such as de, instead of the user's.", "language"});
    parser.addOption({"fail", "Fails every command in which the regular expression <pattern> is found.", "pattern"});
    parser.addOption({"latency", "Makes each command take <ms> milliseconds longer, 0 to 5000.", "ms", "0"});
    parser.addOption({"record", "Writes every command into <file>.", "file"});
    parser.addOption({"replay", "Answers from the recording <file> instead of a simulated controller.", "file"});
}

bool HostOptions::parse(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (!parser.parse(QCoreApplication::arguments()))
        return refuse(parser.errorText() + " See --help.");
    if (!parser.positionalArguments().isEmpty())
        return refuse("Unexpected argument '" + parser.positionalArguments().constFirst() + "'. See --help.");
    if (parser.isSet("help"))
        return printed(parser.helpText().chopped(1));
    if (parser.isSet("version"))
        return printed(QCoreApplication::applicationName() + " " HOST_VERSION);
    if (parser.isSet("list"))
        return listControllers();
    host.pluginFile = parser.isSet("plugin") ? parser.value("plugin") : ModuleLoader::defaultFile();
    host.record = parser.value("record");
    host.replay = parser.value("replay");
    return checkTexts() && checkReplay() && readController() && readProtocol() && readFaults() && readLanguage();
}

/** Lists name and description of each named controller, unless one of their files is broken. */
bool HostOptions::listControllers()
{
    QVector<NamedController> controllers;
    const QString problem = readNamedControllers(&controllers);
    int width = 0;
    for (const NamedController& listed : qAsConst(controllers))
        width = qMax(width, listed.name.size());
    QStringList lines;
    for (const NamedController& listed : qAsConst(controllers))
        lines.append(listed.name.leftJustified(width) + "  " + listed.table.description);
    return problem.isEmpty() ? printed(lines.join('\n')) : refuse(problem);
}

/** The user's first language may lack a translation; one that is asked for may not, unless it is English. */
bool HostOptions::readLanguage()
{
    const QString wanted = parser.value("language");
    host.language = QLocale(parser.isSet("language") ? wanted : QLocale().uiLanguages().value(0));
    QTranslator translator;
    return !parser.isSet("language") || host.language.language() == QLocale::English
           || ModuleLoader::loadTranslation(&translator, host.language, host.pluginFile)
           || refuse(QString("--language %1: no " MODULE_NAME "_%1.qm beside the plug-in").arg(wanted));
}

bool HostOptions::readController()
{
    const QString problem = ::readController(parser.value("controller"), &host.controller);
    return problem.isEmpty() || refuse("--controller " + problem);
}

bool HostOptions::readProtocol()
{
    if (!parser.isSet("protocol"))
        return true;
    const QString problem = ::readProtocol(parser.value("protocol"), &host.controller.table.identity.protocol);
    return problem.isEmpty() || refuse("--protocol: " + problem);
}

bool HostOptions::readFaults()
{
    host.failing.setPattern(parser.value("fail"));
    if (!host.failing.isValid())
        return refuse("--fail " + parser.value("fail") + ": " + host.failing.errorString());
    bool isNumber = false;
    host.latency = parser.value("latency").toInt(&isNumber);
    const bool isTaken = isNumber && host.latency >= 0 && host.latency <= Faults::maximumLatency;
    return isTaken || refuse("--latency " + parser.value("latency") + ": milliseconds from 0 to 5000 are expected");
}

bool HostOptions::checkTexts()
{
    const QMap<QString, QString> expected = {
        {"controller", "a name of --list, or a file"},
        {"language", "a language such as de"},
        {"plugin", "a file"},
        {"record", "a file"},
        {"replay", "a file"},
    };
    for (auto option = expected.begin(); option != expected.end(); ++option) {
        if (parser.isSet(option.key()) && parser.value(option.key()).isEmpty())
            return refuse("--" + option.key() + ": " + option.value() + " is expected");
    }
    return true;
}

bool HostOptions::checkReplay()
{
    if (!parser.isSet("replay"))
        return true;
    if (parser.isSet("fail"))
        return refuse("--fail: not with --replay, which fails the commands that failed when they were recorded");
    if (parser.isSet("protocol"))
        return refuse("--protocol: not with --replay, which takes the protocol from the recording");
    if (parser.isSet("controller") && replayed == Ignored)
        return refuse("--controller: not with --replay, which answers like the recorded controller");
    return true;
}

bool HostOptions::refuse(const QString& message)
{
    itsStatus = fail(message);
    return false;
}
