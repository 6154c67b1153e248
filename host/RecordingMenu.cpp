#include "RecordingMenu.h"

#include "DevelopmentHost.h"

#include <QFileDialog>

RecordingMenu::RecordingMenu(DevelopmentHost* host) : QMenu(tr("&Recording"), &host->window()), host(host)
{
    QAction* start = addAction(tr("&Record..."), this, [this] { record(); });
    QAction* stop = addAction(tr("&Stop recording"), this, [host] { host->window().say(host->stopRecording()); });
    QAction* rewind = addAction(tr("Re&wind the replay"), this, [host] { host->window().say(host->rewindReplay()); });
    start->setStatusTip(tr("Writes every command into a new file"));
    stop->setStatusTip(tr("Ends the recording; its file is complete"));
    rewind->setStatusTip(tr("Answers from the beginning of the recording again"));
    connect(this, &QMenu::aboutToShow, this, [=] {
        start->setEnabled(!host->recorder().isRecording());
        stop->setEnabled(host->recorder().isRecording());
        rewind->setEnabled(host->isReplaying());
    });
}

void RecordingMenu::record()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Record every command"), "session.txt", {}, nullptr,
                                                      QFileDialog::DontConfirmOverwrite); // the recorder refuses it
    if (!file.isEmpty())
        host->window().say(host->startRecording(file));
}
