#include "LoadedModule.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QJsonObject>
#include <QLabel>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTranslator>

/** The plug-in as a host sees it: contract, identity, menu entry, texts, and the dialog's form and lifetime. */
class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    void hasIdentity();
    void offersOneEntry();
    void takesParameters();
    void leavesNothing();
    void speaksGerman();
    void pollsEachSecondWhileOpen();
    void hasForm();
};

namespace {

/** Returns every text of two openings. In the first the user fails to raise the frequency, the second lacks a synccard.
 */
QStringList textsOfSession()
{
    LoadedModule module({"synccard has_source d01 ttlinv=yes", "synccard has_output d01 internal ttlinv=yes",
                         "set synccard internal_frequency d01 121.000000=!"});
    const QAction* entry = module.element->menu_entry;
    QStringList texts = {module.element->menu_name,    entry->text(),
                         entry->statusTip(),           entry->whatsThis(),
                         entry->shortcut().toString(), module.loader.module()->get_module_name()};
    module.open([&] {
        const QList<QWidget*> widgets = QList<QWidget*>{module.dialog()} + module.dialog()->findChildren<QWidget*>();
        for (const QWidget* widget : widgets)
            for (const char* property : {"windowTitle", "text", "whatsThis", "toolTip", "accessibleName"})
                texts.append(widget->property(property).toString());
        const QList<QAbstractItemModel*> models = module.dialog()->findChildren<QAbstractItemModel*>();
        for (const QAbstractItemModel* model : models)
            for (int column = 0; column < model->columnCount(); ++column) {
                texts.append(model->headerData(column, Qt::Horizontal).toString());
                for (int row = 0; row < model->rowCount(); ++row)
                    texts.append(model->index(row, column).data().toString());
            }
        QTest::keyClick(module.find<QWidget>("doubleSpinBox_frequency"), Qt::Key_Up);
        module.user().leave("OK");
    });
    texts += QString(module.boxes.value(0)).split(": ");
    module.link.script({"synccard available = no"});
    module.look();
    return texts << module.find<QLabel>("label_error")->text();
}

/** Returns heights and widths in pixels, and properties of headers and selection. */
QList<int> layoutOf(const QTableWidget* table)
{
    const QHeaderView* header = table->horizontalHeader();
    return {table->maximumHeight(),       table->rowHeight(0),         table->columnWidth(0),
            header->stretchLastSection(), header->sectionsClickable(), table->verticalHeader()->isVisibleTo(table),
            table->selectionMode()};
}

} // namespace

void TestPlugin::hasIdentity()
{
    LoadedModule module;
    QPluginLoader loader(module.loader.fileName());
    const QJsonObject expected = {{"IID", MODULE_IDENTIFIER},
                                  {"className", "SynccardSettingsModule"},
                                  {"debug", false},
                                  {"version", QT_VERSION & 0xFFFF00}}; // without the patch number
    QJsonObject data = loader.metaData();
    data.remove("archreq"); // of the processor
    QCOMPARE(data, expected);
    QObject* object = loader.instance();
    QCOMPARE(object->qt_metacast("ModuleInterface"), object->qt_metacast("org.zorvan.zorvan2.gui.Module/0.2.0"));
    QCOMPARE(static_cast<ModuleInterface*>(object->qt_metacast("ModuleInterface")), module.loader.module());
    QCOMPARE(module.loader.module()->get_module_name(), "GUI Synccard Settings");
    QCOMPARE(module.loader.module()->get_module_version(), "v1.2.7");
    QVERIFY(!QImage(":/images/lock.png").isNull() && !QImage(":/images/synccard.png").isNull());
}

void TestPlugin::offersOneEntry()
{
    LoadedModule module;
    QCOMPARE(module.loader.module()->get_gui_elements(), {module.element});
    QCOMPARE(module.element->menu_name, "H&ardware");
    QCOMPARE(module.element->menu_order_number, 200);
    QCOMPARE(module.element->menu_entry_order_number, 130);
    QCOMPARE(module.element->action_active_during_measurement, 0);
    const QPointer<QAction> action(module.element->menu_entry);
    QCOMPARE(action->text() + action->statusTip() + action->whatsThis() + action->shortcut().toString(),
             "&SynccardChange Synccard settingsChange Synccard settingsShift+F7");
    QTimer::singleShot(0, module.dialog(), [&] {
        action->trigger();
        module.dialog()->done(QDialog::Accepted);
    });
    QCOMPARE(module.dialog()->exec(), int(QDialog::Accepted)); // by the host
    QCOMPARE(module.link.commands, {});
    module.loader.module()->exit_module();
    QCOMPARE(module.element->menu_entry, action.data());
    QVERIFY(module.loader.module()->get_gui_elements().constFirst()->menu_entry != action);
    module.loader.unload();
    QVERIFY(!action);
}

/** The module ignores other names. Values that cannot be converted are null. Without a channel the dialog shows no
 * synccard. */
void TestPlugin::takesParameters()
{
    LoadedModule module;
    ModuleInterface* interface = module.loader.module();
    interface->exit_module();
    interface->set_param("commandmanager", QVariant());
    interface->set_param("ModuleParent", QVariant::fromValue<QObject*>(this));
    module.element = interface->get_gui_elements().constFirst();
    QVERIFY(!module.dialog()->parentWidget());
    module.look();
    QVERIFY(!module.link.takeCommands().isEmpty());
    interface->exit_module();
    interface->set_param("CommandManager", "no channel");
    interface->get_gui_elements();
    module.look();
    QVERIFY(!module.see("label_error").endsWith(" hidden"));
    QCOMPARE(module.link.commands, {});
}

/** Unloading removes every widget and resource. */
void TestPlugin::leavesNothing()
{
    QTableWidget other(1, 1);
    other.setItem(0, 0, new QTableWidgetItem("x"));
    {
        LoadedModule module({"synccard number_of_synccards=1", "synccard synccard d01=0x0402 0"});
        module.look();
        // The style keeps the text of the cell it painted last, and reads it again when it paints the next one.
        module.find<QTableWidget>("tableWidget_synccards")->grab();
    }
    other.grab();
    QPluginLoader forgetful(LoadedModule().loader.fileName());
    forgetful.setLoadHints({});
    auto* interface = qobject_cast<ModuleInterface*>(forgetful.instance());
    QVERIFY(!interface->get_gui_elements().isEmpty());
    delete interface; // without exit_module()
    QVERIFY(forgetful.unload());
    QVERIFY(QApplication::topLevelWidgets() == QWidgetList{&other});
    QVERIFY(!QFile::exists(":/images/lock.png"));
}

/** In German every text is different, except those that are listed here. */
void TestPlugin::speaksGerman()
{
    const QStringList english = textsOfSession();
    QTranslator translator;
    QVERIFY2(ModuleLoader::loadTranslation(&translator, QLocale("de"), LoadedModule().loader.fileName()),
             "no German .qm beside the plug-in; configuration says why");
    QApplication::installTranslator(&translator);
    const QStringList german = textsOfSession();
    static const QRegularExpression letter("[A-Za-z]");
    QStringList same;
    for (const QString& text : english) {
        if (german.contains(text) && text.contains(letter))
            same.append(text);
    }
    same.removeDuplicates();
    QCOMPARE(same.join('|'), "H&ardware|&Synccard|Shift+F7|OK|Second card|Sync card|Fast mode|Slow mode");
}

/**
 * The dialog polls as often as another timer of one second, however slow the machine is. If the host shows the dialog
 * during the reads, nothing is written. After the host has hidden the dialog, no command follows.
 */
void TestPlugin::pollsEachSecondWhileOpen()
{
    LoadedModule module;
    module.look();
    QTimer clock;
    clock.setTimerType(Qt::PreciseTimer);
    int seconds = 0;
    int polls = 0;
    connect(&clock, &QTimer::timeout, this, [&] { ++seconds; });
    auto* source = module.find<QComboBox>("comboBox_source");
    module.link.during = [&](const QByteArray& text) {
        polls += text == "get synccard has_input_frequency";
        if (text != "get synccard available")
            return;
        module.dialog()->showMinimized();
        source->setCurrentIndex(1);
    };
    module.open([&] {
        clock.start(1000);
        QVERIFY(!module.dialog()->isMinimized());
        QTRY_COMPARE_WITH_TIMEOUT(polls, 4, 50000);
        module.dialog()->hide();
    });
    QVERIFY2(seconds == 3 || seconds == 4, qPrintable(QString::number(seconds)));
    QVERIFY(!module.link.takeCommands().join('\n').contains("\nset "));
    source->setCurrentIndex(2);
    QTest::qWait(1200);
    QCOMPARE(module.link.commands, {});
}

/** The form has its texts, sizes and alignments, and names for a screen reader. */
void TestPlugin::hasForm()
{
    LoadedModule module;
    auto* channels = module.find<QTableWidget>("tableWidget_channels");
    const auto* cards = module.find<QTableWidget>("tableWidget_synccards");
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(module.find<QLabel>(name)->textFormat(), Qt::PlainText);
    module.open([&] {
        QCOMPARE(layoutOf(channels), (QList<int>{110, 20, 110, true, false, false, QTableWidget::NoSelection}));
        QCOMPARE(layoutOf(cards), (QList<int>{100, 28, 165, true, false, false, QTableWidget::NoSelection}));
        QCOMPARE(channels->columnWidth(1), 110);
        QVERIFY(channels->isColumnHidden(3));
        QCOMPARE(channels->item(0, 0)->flags(), Qt::ItemIsEnabled);
        QCOMPARE(channels->item(0, 1)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(cards->item(0, 1)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(module.dialog()->minimumSize(), module.dialog()->maximumSize());
        QCOMPARE(channels->accessibleName() + ", " + cards->accessibleName(), "Synccard channels, Available synccards");
        const QDoubleSpinBox* editor = module.user().editDelay(0);
        QCOMPARE(editor->accessibleName() + ' ' + editor->text(), "Delay [us] 250");
        module.user().leave("Escape");
    });
    const auto* source = module.find<QWidget>("comboBox_source");
    module.look();
    QCOMPARE(module.find<QWidget>("doubleSpinBox_frequency")->minimumWidth(), source->width());
    QCOMPARE(module.find<QWidget>("spinBox_externalDivisor")->minimumWidth(), source->width());
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
