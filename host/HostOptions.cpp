#include "HostOptions.h"

#include "Console.h"
#include "ControllerText.h"
#include "Faults.h"
#include "ModuleLoader.h"
#include "WireText.h"

#include <QCoreApplication>
#include <QTranslator>

static constexpr int nameWidth = 17; // characters in a list of controllers

static bool printed(const QString& text)
{
    print(text);
    return false;
}

HostOptions::HostOptions(const QString& description)
{
    parser.setApplicationDescription(description);
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions); // Qt's own options have one dash.
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
    parser.addOption({"platform", "Shows the windows on Qt's <platform>, such as offscreen.", "platform"});
    parser.addOption({"style", "Draws the windows in Qt's <style>, such as fusion.", "style"});
}

bool HostOptions::parse(int argc, char** argv)
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
    if (parser.isSet("platform"))
        qputenv("QT_QPA_PLATFORM", parser.value("platform").toLocal8Bit());
    if (parser.isSet("style"))
        qputenv("QT_STYLE_OVERRIDE", parser.value("style").toLocal8Bit());
    host.pluginFile = parser.isSet("plugin") ? parser.value("plugin") : ModuleLoader::defaultFile();
    host.record = parser.value("record");
    host.replay = parser.value("replay");
    return checkTexts() && checkReplay() && readController() && readProtocol() && readFaults() && readLanguage();
}

/** Lists name and description of each named controller. If one of their files has a fault, prints it instead. */
bool HostOptions::listControllers()
{
    QVector<NamedController> controllers;
    const QString problem = readNamedControllers(&controllers);
    QStringList lines;
    for (const NamedController& listed : qAsConst(controllers))
        lines.append(listed.name.leftJustified(nameWidth) + escaped(listed.table.description.toLatin1()));
    return problem.isEmpty() ? printed(lines.join('\n')) : refuse(problem);
}

/** Requires a translation for the language of --language, but neither for English nor for the desktop's language. */
bool HostOptions::readLanguage()
{
    const QString wanted = parser.value("language");
    host.language = QLocale(parser.isSet("language") ? wanted : QLocale().uiLanguages().value(0));
    QTranslator translator;
    return !parser.isSet("language") || host.language.language() == QLocale::English
           || ModuleLoader::loadTranslation(&translator, host.language, host.pluginFile)
           || refuse(QString("--language %1: no " MODULE_NAME "_%1.qm next to the plug-in").arg(wanted));
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

/** Refuses empty values, such as an unset variable of a script. */
bool HostOptions::checkTexts()
{
    for (const char* name : {"controller", "language", "plugin", "record", "replay"}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return refuse(QString("--%1: a value is expected").arg(name));
    }
    return true;
}

bool HostOptions::checkReplay()
{
    for (const char* name : {"fail", "protocol"}) {
        if (parser.isSet("replay") && parser.isSet(name))
            return refuse(QString("--%1: not allowed with --replay, which takes it from the recording").arg(name));
    }
    return true;
}

bool HostOptions::refuse(const QString& message)
{
    itsStatus = fail(message);
    return false;
}
