#include "CommandPane.h"

#include "DevelopmentHost.h"
#include "FaultPane.h"
#include "LogTable.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QVBoxLayout>

static constexpr int columnPadding = 24;  // pixels
static constexpr int shortestPause = 100; // milliseconds between two paintings, which may themselves take some

CommandPane::CommandPane(DevelopmentHost* host) : table(createTable(host))
{
    sinceShown.start();
    auto* faults = new FaultPane(host);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createFilter());
    layout->addWidget(table);
    layout->addLayout(createButtons());
    layout->addWidget(faults);
    connect(faults, &FaultPane::said, this, &CommandPane::said);
    connect(&host->channel(), &ControllerChannel::executed, this, [this, host](const CommandRecord& record) {
        commands.append(record);
        // A slow command is shown as soon as it is answered: no event loop may run until the module has asked them all.
        if (host->faults().latency() == 0 || sinceShown.elapsed() < shortestPause)
            return;
        commands.showPending();
        QApplication::sendPostedEvents(table, QEvent::MetaCall); // scrollToBottom()
        table->viewport()->repaint();
        sinceShown.start();
    });
    connect(&host->replay(), &Replay::differed, &commands, &CommandModel::appendProblem);
}

LogTable* CommandPane::createTable(DevelopmentHost* host)
{
    unpolled.setSourceModel(&commands);
    unpolled.setFilterRole(CommandModel::KindRole);
    shown.setSourceModel(&unpolled);
    shown.setFilterKeyColumn(-1);
    shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* log = new LogTable(host, "commands", tr("Commands"));
    log->setModel(&shown);
    const QStringList widest = {"00:00:00.000", "Operation",   "synccard max_external_divisor d01 video",
                                "Answer",       "failed (-1)", "5000.000 ms"};
    const auto widthOf = [log](const QString& text) {
        return log->fontMetrics().boundingRect(text).width() + columnPadding;
    };
    for (int column = 0; column < widest.size(); ++column)
        log->setColumnWidth(column, widthOf(widest.at(column)));
    log->horizontalHeader()->setMinimumSectionSize(widthOf("Answer"));
    log->horizontalHeader()->setSectionResizeMode(widest.indexOf("Answer"), QHeaderView::Stretch);
    // The table follows the newest row while the user has it scrolled to the end.
    connect(&shown, &QAbstractItemModel::rowsAboutToBeInserted, log, [this] {
        const QScrollBar* bar = table->verticalScrollBar();
        if (bar->value() == bar->maximum())
            QMetaObject::invokeMethod(table, "scrollToBottom", Qt::QueuedConnection);
    });
    return log;
}

QBoxLayout* CommandPane::createFilter()
{
    auto* filter = new QLineEdit;
    connect(filter, &QLineEdit::textChanged, &shown, &QSortFilterProxyModel::setFilterFixedString);
    auto* filterLabel = new QLabel(tr("Fi&lter"));
    filterLabel->setBuddy(filter);
    auto* hidePolls = new QCheckBox(tr("&Hide polls"));
    connect(hidePolls, &QCheckBox::toggled, &unpolled,
            [this](bool isOn) { unpolled.setFilterFixedString(isOn ? "command" : ""); });
    hidePolls->setChecked(true);
    auto* row = new QHBoxLayout;
    row->addWidget(filterLabel);
    row->addWidget(filter);
    row->addWidget(hidePolls);
    return row;
}

QBoxLayout* CommandPane::createButtons()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    const auto addButton = [&](const QString& text, auto slot) {
        auto* button = new QPushButton(text);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
    };
    addButton(tr("Co&py"), [this] { table->copy(); });
    addButton(tr("&Save..."), [this] {
        const QString file = QFileDialog::getSaveFileName(this, tr("Save the commands"), "commands.txt");
        if (!file.isEmpty())
            save(file);
    });
    addButton(tr("Cl&ear"), [this] { commands.clear(); });
    return row;
}

void CommandPane::save(const QString& file)
{
    QSaveFile output(file);
    const bool isSaved =
        output.open(QIODevice::WriteOnly) && output.write(table->text(false).toUtf8()) >= 0 && output.commit();
    emit said(isSaved ? tr("Saved to %1").arg(file) : file + ": " + output.errorString());
}
