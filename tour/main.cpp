#include "HostOptions.h"
#include "Tour.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

namespace {

bool hasWarned = false;

/** A Qt warning is a fault; the offscreen platform's own about fixed-size windows is none. */
void noteWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || message == "This plugin does not support propagateSizeHints()")
        return;
    hasWarned = true;
    HostOptions::fail(message);
}

} // namespace

int main(int argc, char* argv[])
{
    HostOptions options("Drives the synccard dialog like a user, in front of a simulated controller.");
    options.addOption({"pictures", "Saves a picture of each state into <folder>.", "folder"});
    if (!options.parse(argc, argv))
        return options.exitStatus();
    const QString pictures = options.value("pictures");
    if (!pictures.isEmpty() && !QDir().mkpath(pictures))
        return HostOptions::fail("--pictures " + pictures + ": the folder cannot be made");

    qInstallMessageHandler(noteWarning);
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    Tour tour(options.setup(), pictures);
    if (!tour.start())
        return HostOptions::fail(tour.problem());
    if (!tour.run()) {
        static_cast<void>(std::fflush(stdout));
        HostOptions::fail(tour.problem());
        return 1;
    }
    return hasWarned ? 1 : 0;
}
