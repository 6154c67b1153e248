#include "VersionInfo.h"
#include "synccardlist.h"

#include <QMap>
#include <QTest>
#include <QVector>

/** The contract's versions, and the plug-in's settings records. Both are headers only. */
class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void comparesVersions();
    void parsesVersions();
    void keepsRecords();
};

void TestRecords::comparesVersions()
{
    const QVector<VersionInfo> ascending = {{-1, 5, 5}, {0, 8, -2}, {0, 8, -1}, {0, 8, 0}, {0, 13, -1}, {1, 0, 0}};
    for (const VersionInfo& a : ascending) {
        for (const VersionInfo& b : ascending)
            QCOMPARE((QList<bool>{a == b, a != b, a > b, a >= b, a < b, a <= b}),
                     (QList<bool>{&a == &b, &a != &b, &a > &b, &a >= &b, &a < &b, &a <= &b}));
    }
}

void TestRecords::parsesVersions()
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

void TestRecords::keepsRecords()
{
    SynccardList list;
    QVERIFY(!list.getSynccard(0));
    QVERIFY(!list.hasSynccard(0));
    auto* first = new Synccard(0);
    list.add(first);
    list.add(new Synccard(0));
    QCOMPARE(list.getSynccard(0), first);
    const QString defaults = QString("%1 %2/%3/%4 %5").arg(first->id()).arg(first->activeMode(), first->activeSource());
    QCOMPARE(defaults.arg(first->frequency()).arg(first->externalDivisor()), "0 //60 1");
    QCOMPARE(first->channelsCount(), 0);
    first->addChannel(new Channel);
    QVERIFY(first->channel(0));
    for (const int outside : {-1, 1})
        QVERIFY(!first->channel(outside));
    list.clear();
    QCOMPARE(list.size(), 0);
}

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
