#include "Console.h"
#include "HostOptions.h"
#include "MessageFilter.h"
#include "Tour.h"

#include <QApplication>
#include <QDir>

namespace {

bool hasWarned = false;

void noteWarning(const QString& message)
{
    hasWarned = true;
    fail(message);
}

} // namespace

int main(int argc, char* argv[])
{
    HostOptions options("Drives the synccard dialog like a user: walks through it on the controller \"full\", opens it "
                        "once on any other.");
    options.addOption({"pictures", "Saves a picture of each state into <folder>.", "folder"});
    if (!options.parse(argc, argv))
        return options.status();
    const QString pictures = options.value("pictures");
    if (!pictures.isEmpty() && !QDir().mkpath(pictures))
        return fail("--pictures " + pictures + ": the folder cannot be created");

    takeWarnings(noteWarning);
    int nameOnly = 1; // Qt must not see the arguments: it has an option --plugin of its own.
    const QApplication application(nameOnly, argv);
    const int status = Tour(options.setup(), pictures).run();
    return status == 0 && hasWarned ? 1 : status;
}
