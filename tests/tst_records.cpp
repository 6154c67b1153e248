#include "synccardlist.h"

#include <QTest>

/** The settings records of the plug-in, which are headers only. */
class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void keepsRecords();
};

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
