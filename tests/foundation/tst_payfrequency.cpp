#include "foundation/PayFrequency.h"

#include "TestProgram.h"

class tst_payfrequency : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void EveryFrequencyHasItsOption()
    {
        QCOMPARE(OptionOfPayFrequency(7), 0);
        QCOMPARE(OptionOfPayFrequency(14), 1);
        QCOMPARE(OptionOfPayFrequency(15), 2);
        QCOMPARE(OptionOfPayFrequency(30), 3);
        QCOMPARE(OptionOfPayFrequency(0), -1);
        QCOMPARE(OptionOfPayFrequency(21), -1);
        QCOMPARE(PayFrequencyOptions().size(), 4);
    }
};

REGISTER_TEST(tst_payfrequency)
#include "tst_payfrequency.moc"
