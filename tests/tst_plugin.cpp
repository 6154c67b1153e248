#include "LoadedModule.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QJsonObject>
#include <QLabel>
#include <QTableWidget>
#include <QTranslator>

/** The plug-in as a host meets it: contract, identity, menu entry, form, texts. */
class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    void hasIdentity();
    void offersOneEntry();
    void takesParameters();
    void leavesNothing();
    void hasForm();
    void translatesEveryText();
};

namespace {

/** Puts a "#" before each text of the module, except the shortcut, which must stay a key. */
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool isOurs =
            QByteArrayList{"SynccardSettingsModule", "SynccardDialog", "synccarddialog"}.contains(context);
        return isOurs && qstrcmp(text, "Shift+F7") != 0 ? QString("#") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

template <typename Widget, typename Visit>
void forEach(const LoadedModule& module, Visit visit)
{
    const QList<Widget*> widgets = module.dialog()->findChildren<Widget*>();
    std::for_each(widgets.begin(), widgets.end(), visit);
}

/** Sizes in pixels; "-" is the width that is left for the last column shown. */
QString layoutOf(const QTableWidget* table)
{
    const QHeaderView* header = table->horizontalHeader();
    QString columns;
    int last = table->columnCount() - 1;
    while (table->isColumnHidden(last))
        --last;
    for (int column = 0; column < table->columnCount(); ++column)
        columns += ' ' + (column == last ? "-" : QString::number(table->columnWidth(column)));
    return QString("%1 high, rows %2, columns%3, %4%5%6")
        .arg(table->maximumHeight())
        .arg(table->rowHeight(0))
        .arg(columns, header->stretchLastSection() ? "stretched" : "not stretched",
             header->sectionsClickable() ? ", clickable" : "",
             table->verticalHeader()->isHidden() ? "" : ", row headers");
}

} // namespace

void TestPlugin::hasIdentity()
{
    LoadedModule module;
    QPluginLoader loader(module.loader.fileName());
    const QJsonObject data = loader.metaData();
    QCOMPARE(data.value("IID").toString(), MODULE_IDENTIFIER);
    QCOMPARE(data.value("className").toString(), "SynccardSettingsModule");
    QCOMPARE(data.value("debug").toBool(true), false);
    QCOMPARE(data.value("version").toInt(), QT_VERSION & 0xFFFF00); // without the patch number
    QObject* object = loader.instance();
    QVERIFY(object);
    QCOMPARE(object, loader.instance());
    QCOMPARE(object->qt_metacast("ModuleInterface"), object->qt_metacast("org.zorvan.zorvan2.gui.Module/0.2.0"));
    QCOMPARE(static_cast<ModuleInterface*>(object->qt_metacast("ModuleInterface")), module.loader.module());
    QCOMPARE(module.loader.module()->get_module_name(), "GUI Synccard Settings");
    QCOMPARE(module.loader.module()->get_module_version(), "v1.2.7");
    QCOMPARE(QFile(":/images/lock.png").size(), 1241);
    QCOMPARE(QImage(":/images/lock.png").size(), QSize(48, 48));
    QCOMPARE(QFile(":/images/synccard.png").size(), 22652);
    QCOMPARE(QImage(":/images/synccard.png").size(), QSize(103, 104));
}

void TestPlugin::offersOneEntry()
{
    LoadedModule module;
    QCOMPARE(module.loader.module()->get_gui_elements(), {module.element});
    QCOMPARE(QString("%1 %2 %3 %4")
                 .arg(module.element->menu_name)
                 .arg(module.element->menu_order_number)
                 .arg(module.element->menu_entry_order_number)
                 .arg(module.element->action_active_during_measurement),
             "H&ardware 200 130 0");
    QPointer<QAction> action(module.element->menu_entry);
    QCOMPARE(action->text() + action->statusTip() + action->whatsThis() + action->shortcut().toString(),
             "&SynccardChange Synccard settingsChange Synccard settingsShift+F7");
    QVERIFY(action->icon().isNull());
    module.openBy([&] { action->trigger(); }, [&] { module.user().leave("Cancel"); });
    QVERIFY(!module.link.commands.isEmpty());
    module.loader.module()->exit_module();
    module.loader.module()->exit_module();
    QVERIFY(!module.element->content);
    QCOMPARE(module.element->menu_entry, action.data());
    QVERIFY(module.loader.module()->get_gui_elements().constFirst()->menu_entry != action);
    module.loader.unload();
    QVERIFY(!action);
}

/** Other names are ignored, and values that cannot be converted are null; without channel there is no synccard. */
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
    module.loader.setParameters(&module.channel, nullptr, nullptr, true);
    interface->set_param("CommandManager", "no channel");
    interface->get_gui_elements();
    module.open([&] {
        QVERIFY(module.dialog()->windowIcon().isNull());
        QVERIFY(!module.see("label_error").endsWith(" hidden"));
        module.user().leave("Escape");
    });
    QCOMPARE(module.link.commands, {});
}

/** Unloading takes away every widget and resource; the plug-in can be loaded again. */
void TestPlugin::leavesNothing()
{
    QString file;
    for (int round = 0; round < 2; ++round) {
        QTableWidget other(1, 1);
        other.setItem(0, 0, new QTableWidgetItem("x"));
        {
            LoadedModule module("1.23", "synccard number_of_synccards=1;synccard synccard d01=0x0402 0");
            module.look();
            // The style keeps the text of the cell it painted last, and reads it again when it paints the next one.
            module.find<QTableWidget>("tableWidget_synccards")->grab();
            file = module.loader.fileName();
        }
        other.grab();
        QPluginLoader forgetful(file);
        forgetful.setLoadHints({});
        auto* interface = qobject_cast<ModuleInterface*>(forgetful.instance());
        QVERIFY(!interface->get_gui_elements().isEmpty());
        delete interface; // without exit_module()
        QVERIFY(forgetful.unload());
        QVERIFY(QApplication::topLevelWidgets() == QWidgetList{&other});
        QVERIFY(!QFile::exists(":/images/lock.png"));
    }
}

void TestPlugin::hasForm()
{
    LoadedModule module;
    QCOMPARE(module.dialog()->objectName(), "synccarddialog");
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(module.find<QLabel>(name)->textFormat(), Qt::PlainText);
    for (const char* name : {"tableWidget_synccards", "tableWidget_channels"})
        QCOMPARE(module.find<QTableWidget>(name)->columnWidth(0), 200);
    module.open([&] {
        const QMap<Qt::Key, const char*> mnemonics = {{Qt::Key_S, "comboBox_modes"},
                                                      {Qt::Key_C, "comboBox_source"},
                                                      {Qt::Key_F, "doubleSpinBox_frequency"},
                                                      {Qt::Key_O, "comboBox_output"}};
        for (auto key = mnemonics.begin(); key != mnemonics.end(); ++key) {
            QTest::keyClick(module.dialog(), key.key(), Qt::AltModifier);
            QCOMPARE(module.dialog()->focusWidget()->objectName(), key.value());
        }
        auto* channels = module.find<QTableWidget>("tableWidget_channels");
        auto* cards = module.find<QTableWidget>("tableWidget_synccards");
        QCOMPARE(layoutOf(channels), "110 high, rows 20, columns 110 110 - 0, stretched");
        QCOMPARE(layoutOf(cards), "100 high, rows 28, columns 165 -, stretched");
        QVERIFY(channels->isColumnHidden(3));
        QCOMPARE(channels->item(0, 0)->flags(), Qt::ItemIsEnabled);
        QCOMPARE(channels->item(0, 1)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(cards->item(0, 1)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(cards->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(channels->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(cards->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(module.dialog()->minimumSize(), module.dialog()->maximumSize());
        module.user().leave("Escape");
    });
}

/** Under a translator every text is translated, and everything still works. */
void TestPlugin::translatesEveryText()
{
    MarkingTranslator translator;
    QApplication::installTranslator(&translator);
    const QByteArray everything = "synccard has_source d01 ttlinv=yes;synccard has_output d01 internal ttlinv=yes";
    LoadedModule module("1.23", everything + ";set synccard internal_frequency d01 121.000000=!");
    QStringList texts = {module.element->menu_name,
                         module.element->menu_entry->text(),
                         module.element->menu_entry->statusTip(),
                         module.element->menu_entry->whatsThis(),
                         module.loader.module()->get_module_name(),
                         module.dialog()->windowTitle()};
    module.open([&] {
        forEach<QWidget>(module, [&](const QWidget* widget) { texts.append(widget->whatsThis()); });
        forEach<QLabel>(module, [&](const QLabel* label) { texts.append(label->text()); });
        for (const char* name : {"comboBox_source", "comboBox_output"})
            for (int i = 0; i < module.find<QComboBox>(name)->count(); ++i)
                texts.append(module.find<QComboBox>(name)->itemText(i));
        forEach<QTableWidget>(module, [&](const QTableWidget* table) {
            for (int i = 0; i < table->columnCount(); ++i)
                texts.append(table->horizontalHeaderItem(i)->text());
        });
        const QString all = texts.join('|');
        for (const char* headers : {"#Model|#Serial", "#Channel|#Delay [us]|#Active during idle|#Max delay"})
            QVERIFY2(all.contains(headers), headers);
        for (const QString& text : qAsConst(texts))
            QVERIFY2(text.isEmpty() || text.startsWith('#'), qPrintable(text));
        QCOMPARE(module.see("comboBox_modes"), "Fast mode=fast|Slow mode=slow|*#direct settings=direct settings");
        QTest::keyClick(module.find<QWidget>("doubleSpinBox_frequency"), Qt::Key_Up);
        module.user().leave("OK");
    });
    QCOMPARE(module.boxes, {"#Warning: #Error occured while performing the change"});
    module.link.script("synccard available=no");
    module.look();
    QVERIFY(module.see("label_error").startsWith('#'));
    QCOMPARE(texts.filter("#").size(), 43);
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
