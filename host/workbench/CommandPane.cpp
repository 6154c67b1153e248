#include "CommandPane.h"

#include "DevelopmentHost.h"
#include "FaultPane.h"
#include "LogTable.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QVBoxLayout>

static constexpr int columnPadding = 24; // pixels

CommandPane::CommandPane(DevelopmentHost* host)
{
    shown.setSourceModel(&commands);
    shown.setFilterKeyColumn(-1);
    shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* faults = new FaultPane(host);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createButtons());
    layout->addWidget(createTable());
    layout->addWidget(faults);
    connect(faults, &FaultPane::said, this, &CommandPane::said);
    connect(&host->channel(), &ControllerChannel::executed, &commands, &CommandModel::append);
    connect(&host->replay(), &Replay::differed, &commands, &CommandModel::appendProblem);
}

QWidget* CommandPane::createTable()
{
    auto* table = new LogTable("commands", tr("Commands"));
    table->setModel(&shown);
    table->horizontalHeader()->setSectionResizeMode(CommandModel::CommandColumn, QHeaderView::Stretch);
    const QMap<int, const char*> widest = {{CommandModel::TimeColumn, "00:00:00.000"},
                                           {CommandModel::OperationColumn, "Operation"},
                                           {CommandModel::AnswerColumn, "ttl - \"signal too slow\""},
                                           {CommandModel::ResultColumn, "failed (-1)"},
                                           {CommandModel::DurationColumn, "5000.000 ms"}};
    for (auto sample = widest.begin(); sample != widest.end(); ++sample)
        table->setColumnWidth(sample.key(), table->fontMetrics().boundingRect(sample.value()).width() + columnPadding);
    // The table follows the newest row while the user has it scrolled to the end.
    connect(&shown, &QAbstractItemModel::rowsAboutToBeInserted, table, [table] {
        const QScrollBar* bar = table->verticalScrollBar();
        if (bar->value() == bar->maximum())
            QMetaObject::invokeMethod(table, "scrollToBottom", Qt::QueuedConnection);
    });
    return table;
}

QBoxLayout* CommandPane::createButtons()
{
    auto* filter = new QLineEdit;
    connect(filter, &QLineEdit::textChanged, &shown, &QSortFilterProxyModel::setFilterFixedString);
    auto* filterLabel = new QLabel(tr("Fi&lter"));
    filterLabel->setBuddy(filter);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(filterLabel);
    buttons->addWidget(filter);
    const auto addButton = [&](const QString& text, auto slot) {
        auto* button = new QPushButton(text);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
    };
    addButton(tr("Co&py"), [this] { QApplication::clipboard()->setText(text()); });
    addButton(tr("&Save..."), [this] { save(); });
    addButton(tr("Cl&ear"), [this] { commands.clear(); });
    return buttons;
}

QString CommandPane::text() const
{
    QString lines;
    for (int row = 0; row < shown.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < shown.columnCount(); ++column)
            cells.append(shown.index(row, column).data().toString());
        lines += cells.join('\t') + '\n';
    }
    return lines;
}

void CommandPane::save()
{
    const QString name = QFileDialog::getSaveFileName(this, tr("Save the commands"), "commands.txt");
    if (name.isEmpty())
        return;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text().toUtf8()) < 0 || !file.commit())
        emit said(name + ": " + file.errorString());
}
