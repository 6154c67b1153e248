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

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
