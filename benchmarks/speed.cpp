#include "speed.h"

#include "Comparison.h"
#include "Report.h"
#include "Stopwatch.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMap>
#include <QPluginLoader>

namespace {

constexpr int rounds = 401;
constexpr int pollRounds = 41;
constexpr int pollsPerRound = 500;
const Workload typical = {8, 8, 1};

void compareConstruction(Report* report)
{
    Comparison both(typical);
    const auto medians = interleaved(
        rounds, [&] { both.destruct(); }, [&] { both.constructModule(); }, [&] { both.constructBare(); });
    report->row("construction", medians.first, medians.second, 1.10);
}

void compareOpening(Report* report, const Workload& workload, double goal)
{
    Comparison both(workload);
    const QString difference = both.difference();
    report->demand(difference.isEmpty(), workload.name() + ": " + difference);
    const int commands = both.commandsOf([&] { both.openModule(); });
    report->demand(commands == workload.openingCommands(), QString("opening %1 sends %2 commands instead of %3")
                                                               .arg(workload.name())
                                                               .arg(commands)
                                                               .arg(workload.openingCommands()));
    const auto medians = interleaved(
        rounds, [] {}, [&] { both.openModule(); }, [&] { both.openBare(); });
    report->row(QString("opening %1, %2 commands").arg(workload.name()).arg(commands), medians.first, medians.second,
                goal);
}

/** Holds the module with 396 channels against the straight line through the module without and with 99. */
void checkStraightLine(Report* report)
{
    Comparison both(typical);
    QMap<int, QVector<double>> times;
    for (int round = 0; round < rounds; ++round) {
        for (const int channels : {0, 99, 396}) {
            both.channel.workload.channels = channels;
            both.openModule(); // takes the rows of the opening before away, which shall not be measured
            times[channels].append(microsecondsOf([&] { both.openModule(); }));
        }
    }
    const double none = median(times.value(0));
    const double line = none + 4.0 * (median(times.value(99)) - none);
    report->row("opening 396/8/1: module, straight line through its 0/8/1 and 99/8/1", median(times.value(396)), line,
                1.20);
}

void comparePoll(Report* report, bool changes)
{
    Comparison both(typical);
    both.channel.alternates = changes;
    const auto poll = [&] {
        for (int i = 0; i < pollsPerRound; ++i)
            both.call("poll_input_frequency");
    };
    const auto showInput = [&] {
        for (int i = 0; i < pollsPerRound; ++i) {
            const bool isOther = changes && i % 2 == 0;
            both.bare->label_inputSource->setText(isOther ? QStringLiteral("ttl") : QStringLiteral("video"));
            both.bare->label_inputFrequency->setText(isOther ? QStringLiteral("120.000") : QStringLiteral("59.940"));
        }
    };
    both.openModule([&] {
        both.bare->show();
        const int commands = both.commandsOf(poll) / pollsPerRound;
        report->demand(commands == pollCommands,
                       QString("a poll sends %1 commands instead of %2").arg(commands).arg(pollCommands));
        const auto medians = interleaved(
            pollRounds, [] {}, poll, showInput);
        both.bare->hide();
        report->rowWithin(QString("poll, %1, 2 commands").arg(changes ? "new texts" : "same texts"),
                          medians.first / pollsPerRound, medians.second / pollsPerRound, 1.0);
    });
}

/** Measures \a step in the open dialog and checks how many commands it sends. \a change runs before, unmeasured. */
void reportStep(Report* report, const QString& what, const Workload& workload, int expectedCommands,
                const std::function<void(Comparison&)>& change, const std::function<void(Comparison&)>& step)
{
    Comparison both(workload);
    QVector<double> times;
    int commands = 0;
    for (int round = 0; round < rounds; ++round)
        both.openModule([&] {
            change(both);
            commands = both.commandsOf([&] { times.append(microsecondsOf([&] { step(both); })); });
        });
    report->demand(commands == expectedCommands,
                   QString("%1 sends %2 commands instead of %3").arg(what).arg(commands).arg(expectedCommands));
    report->row(QString("%1, %2 commands").arg(what).arg(commands), median(times));
}

void reportSteps(Report* report)
{
    const auto nothing = [](Comparison&) {};
    const auto changeSource = [](Comparison& both) {
        both.module->findChild<QComboBox*>("comboBox_source")->setCurrentIndex(1);
    };
    const auto changeFrequency = [](Comparison& both) {
        both.module->findChild<QDoubleSpinBox*>("doubleSpinBox_frequency")->stepUp();
    };
    const auto ok = [](Comparison& both) { both.call("accept"); };
    const auto cancel = [](Comparison& both) { both.call("reject"); };
    reportStep(report, "source change", typical, sourceChangeCommands, nothing, changeSource);
    for (const Workload& workload : {typical, Workload{99, 8, 1}})
        reportStep(report, "OK " + workload.name(), workload, workload.savingCommands(), changeFrequency, ok);
    reportStep(report, "OK without a change", typical, 0, nothing, ok);
    reportStep(report, "Cancel without a change", typical, 0, nothing, cancel);
    reportStep(report, "Cancel after a source change", typical, takingBackCommands, changeSource, cancel);
}

void compareLoading(Report* report)
{
    const auto loader = [](const QString& file) {
        auto plugin = std::make_unique<QPluginLoader>(file);
        plugin->setLoadHints({}); // the default hint would keep the library in memory
        return plugin;
    };
    std::unique_ptr<QPluginLoader> module;
    std::unique_ptr<QPluginLoader> empty;
    const auto prepare = [&] {
        if (module)
            report->demand(module->unload() && empty->unload(), "a plug-in cannot be unloaded");
        module = loader(ModuleLoader::defaultFile());
        empty = loader(EMPTY_PLUGIN);
    };
    const auto load = [report](QPluginLoader* plugin) { report->demand(plugin->instance(), plugin->errorString()); };
    const auto medians = interleaved(
        rounds, prepare, [&] { load(module.get()); }, [&] { load(empty.get()); });
    prepare();
    report->row("loading, instance (empty Widgets plug-in)", medians.first, medians.second, 2.0);
}

} // namespace

void reportSpeed(Report* report)
{
    report->header();
    compareConstruction(report);
    compareOpening(report, typical, 1.10);
    compareOpening(report, {8, 99, 1}, 1.10);
    compareOpening(report, {8, 8, 99}, 1.10);
    compareOpening(report, {99, 99, 99}, 0.90);
    compareOpening(report, {0, 8, 1}, 1.10);
    compareOpening(report, {99, 8, 1}, 0.80);
    compareOpening(report, {396, 8, 1}, 0.80);
    checkStraightLine(report);
    comparePoll(report, false);
    comparePoll(report, true);
    reportSteps(report);
    compareLoading(report);
}
