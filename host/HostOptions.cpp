#include "HostOptions.h"

#include "ControllerFile.h"
#include "Faults.h"
#include "ModuleLoader.h"

#include <QCoreApplication>

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
    parser.addOption({"controller", "Takes the simulated controller from <file> (JSON).", "file"});
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
    host.pluginFile = parser.isSet("plugin") ? parser.value("plugin") : ModuleLoader::defaultFile();
    host.record = parser.value("record");
    host.replay = parser.value("replay");
    return readController() && readProtocol() && readFaults();
}

bool HostOptions::readController()
{
    QString error;
    if (parser.isSet("controller") && !readControllerFile(parser.value("controller"), &host.state, &error))
        return end(fail(error));
    return true;
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
