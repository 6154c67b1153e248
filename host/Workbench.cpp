#include "Workbench.h"

#include "ChoiceDelegate.h"
#include "DevelopmentHost.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>

namespace {

constexpr int nameColumnWidth = 220; // pixels
constexpr int rowPadding = 6;
constexpr int columnPadding = 24;
constexpr QSize initialSize(960, 560);

} // namespace

Workbench::Workbench(DevelopmentHost* host)
    : host(host),
      controller(&host->controller, [host](const ControllerState& state) { return host->changeState(state); }),
      message(new QLabel)
{
    setWindowTitle(tr("Workbench"));
    setWindowIcon(host->window.windowIcon());
    resize(initialSize);
    auto* tabs = new QTabWidget;
    tabs->addTab(createCommands(), tr("&Commands"));
    tabs->addTab(createReports(), tr("&Reports"));
    if (!host->isReplaying())
        tabs->addTab(createController(), tr("C&ontroller"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(message);

    connect(&host->channel, &ControllerChannel::executed, this, [this](const CommandRecord& record) {
        // Each opening begins with it.
        if (record.command == "synccard available")
            controller.markFromNow();
        commands.append(record);
    });
    connect(&host->channel, &ControllerChannel::reported, &reports, &ReportModel::add);
    connect(&host->replay, &Replay::differed, this, [this](const QString& problem) {
        say(problem);
        commands.append({"replay", problem.toUtf8(), {}, -1});
    });
    connect(&controller, &ControllerModel::edited, this, &Workbench::say);
    connect(&host->window, &MainWindow::workbenchWanted, this, [this] {
        show();
        raise();
        activateWindow();
    });
}

void Workbench::say(const QString& text)
{
    message->setText(text);
}

QTableView* Workbench::createTable(QAbstractItemModel* model, const char* objectName, const QString& name)
{
    auto* table = new QTableView;
    table->setModel(model);
    table->setObjectName(objectName);
    table->setAccessibleName(name);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false); // Tab leaves the table
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + rowPadding);
    return table;
}

QWidget* Workbench::createCommands()
{
    shownCommands.setSourceModel(&commands);
    shownCommands.setFilterKeyColumn(-1);
    shownCommands.setFilterCaseSensitivity(Qt::CaseInsensitive);
    QTableView* table = createTable(&shownCommands, "commands", tr("Commands"));
    table->horizontalHeader()->setSectionResizeMode(CommandModel::CommandColumn, QHeaderView::Stretch);
    const QMap<int, const char*> widest = {{CommandModel::TimeColumn, "00:00:00.000"},
                                           {CommandModel::OperationColumn, "Operation"},
                                           {CommandModel::AnswerColumn, "ttl - \"signal too slow\""},
                                           {CommandModel::ResultColumn, "failed (-1)"},
                                           {CommandModel::DurationColumn, "5000.000 ms"}};
    for (auto sample = widest.begin(); sample != widest.end(); ++sample)
        table->setColumnWidth(sample.key(), table->fontMetrics().boundingRect(sample.value()).width() + columnPadding);
    // It follows the newest row as long as that is in sight.
    connect(&shownCommands, &QAbstractItemModel::rowsAboutToBeInserted, table, [table] {
        const QScrollBar* bar = table->verticalScrollBar();
        if (bar->value() == bar->maximum())
            QMetaObject::invokeMethod(table, "scrollToBottom", Qt::QueuedConnection);
    });
    auto* filter = new QLineEdit;
    connect(filter, &QLineEdit::textChanged, &shownCommands, &QSortFilterProxyModel::setFilterFixedString);
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
    addButton(tr("Co&py"), [this] { copyCommands(); });
    addButton(tr("&Save..."), [this] { saveCommands(); });
    addButton(tr("Cl&ear"), [this] { commands.clear(); });
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->addLayout(buttons);
    layout->addWidget(table);
    layout->addWidget(createFaults());
    return pane;
}

QWidget* Workbench::createFaults()
{
    auto* count = new QSpinBox;
    count->setRange(0, 1000);
    count->setSpecialValueText(tr("none"));
    count->setKeyboardTracking(false);
    count->setEnabled(!host->isReplaying());
    connect(count, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int n) { host->faults.failNth(n); });
    connect(&host->channel, &ControllerChannel::executed, count, [this, count] {
        const QSignalBlocker blocker(count);
        // Setting it anew would take away what somebody is typing.
        if (count->value() != host->faults.commandsToFailure())
            count->setValue(host->faults.commandsToFailure());
    });
    auto* pattern = new QLineEdit(host->faults.failing().pattern());
    pattern->setPlaceholderText(tr("regular expression, such as output_delay.*ch02"));
    pattern->setEnabled(!host->isReplaying());
    connect(pattern, &QLineEdit::editingFinished, this, [this, pattern] {
        const QRegularExpression expression(pattern->text());
        say(expression.isValid() ? QString()
                                 : tr("No regular expression, the former one stays: %1").arg(expression.errorString()));
        if (expression.isValid())
            host->faults.failMatching(expression);
    });
    auto* latency = new QSpinBox;
    latency->setRange(0, Faults::maximumLatency);
    latency->setSingleStep(100);
    latency->setKeyboardTracking(false);
    latency->setSuffix(tr(" ms"));
    latency->setValue(host->faults.latency());
    connect(latency, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int milliseconds) { host->faults.setLatency(milliseconds); });
    auto* pane = new QWidget;
    auto* layout = new QFormLayout(pane);
    layout->setContentsMargins({});
    layout->addRow(tr("Fail the &n-th command from now"), count);
    layout->addRow(tr("Fail commands that &match"), pattern);
    layout->addRow(tr("Each command &takes longer by"), latency);
    return pane;
}

QWidget* Workbench::createReports()
{
    QTableView* table = createTable(&reports, "reports", tr("Error reports"));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(ReportModel::MessageColumn, QHeaderView::Stretch);
    return table;
}

QWidget* Workbench::createController()
{
    auto* tree = new QTreeView;
    tree->setModel(&controller);
    tree->setAccessibleName(tr("Simulated controller"));
    tree->setItemDelegateForColumn(1, new ChoiceDelegate(tree));
    tree->setColumnWidth(0, nameColumnWidth);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // By a double click or Return, wherever in the row.
    connect(tree, &QTreeView::activated, tree, [tree](const QModelIndex& index) {
        if (index.siblingAtColumn(1).flags() & Qt::ItemIsEditable)
            tree->edit(index.siblingAtColumn(1));
    });
    return tree;
}

QString Workbench::commandsText() const
{
    QString text;
    for (int row = 0; row < shownCommands.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < shownCommands.columnCount(); ++column)
            cells.append(shownCommands.index(row, column).data().toString());
        text += cells.join('\t') + '\n';
    }
    return text;
}

void Workbench::copyCommands() const
{
    QApplication::clipboard()->setText(commandsText());
}

void Workbench::saveCommands()
{
    const QString name = QFileDialog::getSaveFileName(this, tr("Save the commands"), "commands.txt");
    if (name.isEmpty())
        return;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(commandsText().toUtf8()) < 0 || !file.commit())
        say(name + ": " + file.errorString());
}
