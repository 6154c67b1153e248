#include "Bench.h"
#include "synccardlist.h"

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
    void comparesVersions();
    void parsesVersions();
    void keepsRecords();
    void hasIdentity();
    void offersOneEntry();
    void takesParameters();
    void leavesNothing();
    void hasForm();
    void translatesEveryText();
};

namespace {

/** Marks every text it is asked for; a shortcut must stay one. */
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
void forEach(const Bench& bench, Visit visit)
{
    const QList<Widget*> widgets = bench.dialog()->findChildren<Widget*>();
    std::for_each(widgets.begin(), widgets.end(), visit);
}

} // namespace

void TestPlugin::comparesVersions()
{
    const QVector<VersionInfo> ascending = {{-1, 5, 5}, {0, 8, -2}, {0, 8, -1}, {0, 8, 0}, {0, 13, -1}, {1, 0, 0}};
    for (const VersionInfo& a : ascending) {
        for (const VersionInfo& b : ascending)
            QVERIFY((a == b) == (&a == &b) && (a != b) == (&a != &b) && (a > b) == (&a > &b) && (a >= b) == (&a >= &b)
                    && (a < b) == (&a < &b) && (a <= b) == (&a <= &b));
    }
}

void TestPlugin::parsesVersions()
{
    const QMap<QString, QString> versions = {
        {"1.23.4", "1.23.4"}, {"1.23", "1.23.0"}, {"0.13.-1", "0.13.-1"}, {"", ""},     {"1", ""},   {"1.2.3.4", ""},
        {"1.x", ""},          {"1. 2", ""},       {"+1.2", ""},           {"1.2 ", ""}, {"1.-", ""}, {"1..2", ""}};
    for (auto version = versions.begin(); version != versions.end(); ++version) {
        VersionInfo parsed(7, 8, 9);
        bool ok = version.value().isEmpty();
        parsed.fromString(version.key(), &ok);
        QCOMPARE(ok, !version.value().isEmpty());
        QCOMPARE(parsed.toString(), ok ? version.value() : "7.8.9");
    }
}

void TestPlugin::keepsRecords()
{
    SynccardList list;
    QVERIFY(!list.getSynccard(0) && !list.hasSynccard(0));
    auto* first = new Synccard(0);
    list.add(first);
    list.add(new Synccard(0));
    QCOMPARE(list.getSynccard(0), first);
    QVERIFY(first->id() == 0 && first->activeMode().isEmpty() && first->activeSource().isEmpty()
            && first->frequency() == 60.0 && first->externalDivisor() == 1 && first->channelsCount() == 0);
    first->addChannel(new Channel);
    QVERIFY(first->channel(0) && !first->channel(1) && !first->channel(-1));
    list.clear();
    QCOMPARE(list.size(), 0);
}

void TestPlugin::hasIdentity()
{
    Bench bench;
    QPluginLoader loader(bench.loader.fileName());
    const QJsonObject data = loader.metaData();
    QCOMPARE(data.value("IID").toString(), "org.zorvan.Zorvan2.SnyccardSettingsModule");
    QCOMPARE(data.value("className").toString(), "SynccardSettingsModule");
    QCOMPARE(data.value("debug").toBool(true), false);
    QCOMPARE(data.value("version").toInt(), 0x050F00);
    QObject* object = loader.instance();
    QVERIFY(object && object == loader.instance());
    QCOMPARE(object->qt_metacast("ModuleInterface"), object->qt_metacast("org.zorvan.zorvan2.gui.Module/0.2.0"));
    QCOMPARE(static_cast<ModuleInterface*>(object->qt_metacast("ModuleInterface")), bench.loader.module());
    QCOMPARE(bench.loader.module()->get_module_name(), "GUI Synccard Settings");
    QCOMPARE(bench.loader.module()->get_module_version(), "v1.2.7");
    QCOMPARE(QFile(":/images/lock.png").size(), 1241);
    QCOMPARE(QImage(":/images/lock.png").size(), QSize(48, 48));
    QCOMPARE(QFile(":/images/synccard.png").size(), 22652);
    QCOMPARE(QImage(":/images/synccard.png").size(), QSize(103, 104));
}

void TestPlugin::offersOneEntry()
{
    Bench bench;
    QCOMPARE(bench.loader.module()->get_gui_elements(), {bench.element});
    QCOMPARE(QString("%1 %2 %3 %4")
                 .arg(bench.element->menu_name)
                 .arg(bench.element->menu_order_number)
                 .arg(bench.element->menu_entry_order_number)
                 .arg(bench.element->action_active_during_measurement),
             "H&ardware 200 130 0");
    QPointer<QAction> action(bench.element->menu_entry);
    QCOMPARE(action->text() + action->statusTip() + action->whatsThis() + action->shortcut().toString(),
             "&SynccardChange Synccard settingsChange Synccard settingsShift+F7");
    QVERIFY(action->icon().isNull());
    bench.openBy([&] { action->trigger(); }, [&] { bench.user().leave("Cancel"); });
    QVERIFY(!bench.channel.commands.isEmpty());
    bench.loader.module()->exit_module();
    bench.loader.module()->exit_module();
    QVERIFY(!bench.element->content && bench.element->menu_entry == action);
    QVERIFY(bench.loader.module()->get_gui_elements().constFirst()->menu_entry != action);
    bench.loader.unload();
    QVERIFY(!action);
}

/** Keys are exact; a value that cannot be converted counts as none, and without any there is no synccard. */
void TestPlugin::takesParameters()
{
    Bench bench;
    ModuleInterface* module = bench.loader.module();
    module->exit_module();
    module->set_param("commandmanager", QVariant());
    module->set_param("ModuleParent", QVariant::fromValue<QObject*>(this));
    bench.element = module->get_gui_elements().constFirst();
    QVERIFY(!bench.dialog()->parentWidget());
    bench.look();
    QVERIFY(!bench.channel.takeCommands().isEmpty());
    module->exit_module();
    bench.loader.setParameters(&bench.channel, nullptr, nullptr, true);
    module->set_param("CommandManager", "no channel");
    module->get_gui_elements();
    bench.open([&] {
        QVERIFY(bench.dialog()->windowIcon().isNull() && !bench.see("label_error").endsWith(" hidden"));
        bench.user().leave("Escape");
    });
    QCOMPARE(bench.channel.commands, {});
}

/** Unloading takes away every widget and resource; the plug-in can be loaded again. */
void TestPlugin::leavesNothing()
{
    QString file;
    for (int round = 0; round < 2; ++round) {
        QTableWidget other(1, 1);
        other.setItem(0, 0, new QTableWidgetItem("x"));
        {
            Bench bench("1.23", "synccard number_of_synccards=1;synccard synccard d01=0x0402 0");
            bench.look();
            // The style keeps the text painted last until it paints another one, when the plug-in is gone.
            bench.find<QTableWidget>("tableWidget_synccards")->grab();
            file = bench.loader.fileName();
        }
        other.grab();
        QPluginLoader forgetful(file);
        forgetful.setLoadHints({});
        auto* module = qobject_cast<ModuleInterface*>(forgetful.instance());
        QVERIFY(!module->get_gui_elements().isEmpty());
        delete module; // without exit_module()
        QVERIFY(forgetful.unload());
        QVERIFY(QApplication::topLevelWidgets() == QWidgetList{&other});
        QVERIFY(!QFile::exists(":/images/lock.png"));
    }
}

void TestPlugin::hasForm()
{
    Bench bench;
    QCOMPARE(bench.dialog()->objectName(), "synccarddialog");
    for (const char* name : {"label_inputSource", "label_inputFrequency"})
        QCOMPARE(bench.find<QLabel>(name)->textFormat(), Qt::PlainText);
    for (const char* name : {"tableWidget_synccards", "tableWidget_channels"})
        QCOMPARE(bench.find<QTableWidget>(name)->columnWidth(0), 200);
    bench.open([&] {
        const QMap<Qt::Key, const char*> mnemonics = {{Qt::Key_S, "comboBox_modes"},
                                                      {Qt::Key_C, "comboBox_source"},
                                                      {Qt::Key_F, "doubleSpinBox_frequency"},
                                                      {Qt::Key_O, "comboBox_output"}};
        for (auto key = mnemonics.begin(); key != mnemonics.end(); ++key) {
            QTest::keyClick(bench.dialog(), key.key(), Qt::AltModifier);
            QCOMPARE(bench.dialog()->focusWidget()->objectName(), key.value());
        }
        auto* channels = bench.find<QTableWidget>("tableWidget_channels");
        auto* cards = bench.find<QTableWidget>("tableWidget_synccards");
        QVERIFY(channels->maximumHeight() == 110 && channels->isColumnHidden(3) && channels->rowHeight(1) == 20);
        QVERIFY(cards->maximumHeight() == 100 && cards->columnWidth(0) == 165 && cards->rowHeight(0) == 28);
        QVERIFY(channels->columnWidth(0) == 110 && channels->columnWidth(1) == 110);
        QVERIFY(channels->verticalHeader()->isHidden() && cards->verticalHeader()->isHidden());
        QCOMPARE(channels->item(0, 0)->flags(), Qt::ItemIsEnabled);
        QCOMPARE(channels->item(0, 1)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(cards->item(0, 1)->textAlignment(), int(Qt::AlignCenter));
        QVERIFY(!channels->horizontalHeader()->sectionsClickable() && !cards->horizontalHeader()->sectionsClickable());
        QCOMPARE(cards->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(channels->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(cards->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(bench.dialog()->minimumSize(), bench.dialog()->maximumSize());
        bench.user().leave("Escape");
    });
}

/** Under a translator every text is translated, and everything still works. */
void TestPlugin::translatesEveryText()
{
    MarkingTranslator translator;
    QApplication::installTranslator(&translator);
    const QByteArray everything = "synccard has_source d01 ttlinv=yes;synccard has_output d01 internal ttlinv=yes";
    Bench bench("1.23", everything + ";set synccard internal_frequency d01 121.000000=!");
    QStringList texts = {bench.element->menu_name,
                         bench.element->menu_entry->text(),
                         bench.element->menu_entry->statusTip(),
                         bench.element->menu_entry->whatsThis(),
                         bench.loader.module()->get_module_name(),
                         bench.dialog()->windowTitle()};
    bench.open([&] {
        forEach<QWidget>(bench, [&](const QWidget* widget) { texts.append(widget->whatsThis()); });
        forEach<QLabel>(bench, [&](const QLabel* label) { texts.append(label->text()); });
        for (const char* name : {"comboBox_source", "comboBox_output"})
            for (int i = 0; i < bench.find<QComboBox>(name)->count(); ++i)
                texts.append(bench.find<QComboBox>(name)->itemText(i));
        forEach<QTableWidget>(bench, [&](const QTableWidget* table) {
            for (int i = 0; i < table->columnCount(); ++i)
                texts.append(table->horizontalHeaderItem(i)->text());
        });
        const QString all = texts.join('|');
        QVERIFY(all.contains("#Model|#Serial") && all.contains("#Channel|#Delay [us]|#Active during idle|#Max delay"));
        for (const QString& text : qAsConst(texts))
            QVERIFY2(text.isEmpty() || text.startsWith('#'), qPrintable(text));
        QCOMPARE(bench.see("comboBox_modes"), "Fast mode=fast|Slow mode=slow|*#direct settings=direct settings");
        QTest::keyClick(bench.find<QWidget>("doubleSpinBox_frequency"), Qt::Key_Up);
        bench.user().leave("OK");
    });
    QCOMPARE(bench.boxes, {"#Warning: #Error occured while performing the change"});
    bench.channel.script("synccard available=no");
    bench.look();
    QVERIFY(bench.see("label_error").startsWith('#'));
    QCOMPARE(texts.filter("#").size(), 43);
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
