// What the window of the creditors does by itself: the order of the days, and a panel that stays open. The rest is in
// gui_listpanels.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmCreditors"_s;
const QString List = u"lstCreditors"_s;
const QString Commit = u"cmdAddChangeCreditor"_s;
const QStringList Fields{u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s};

const QByteArray TwoCreditors = "2\r\n5\r\n\"Rent\"\r\n700\r\n20\r\n\"Phone\"\r\n40.5\r\n";

/// The window with the file's creditors listed.
void Open(const CommitmentsDesk &desk, const QByteArray &file = TwoCreditors)
{
    desk.WriteFile(u"creditor.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListCreditors"_s);
}

void Enter(const QString &dueDate, const QString &amount, const QString &creditor)
{
    Type(Window, Fields[0], dueDate);
    Type(Window, Fields[1], amount);
    Type(Window, Fields[2], creditor);
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"creditor.txt"_s);
}

} // namespace

class gui_frmCreditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ANewCreditorIsSortedInSavedAndReadBack()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"12"_s, u"1,250.5"_s, u"Car"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Rent"_s, u"Car"_s, u"Phone"_s}));
        QCOMPARE(File(desk),
                 QByteArray("3\r\n5\r\n\"Rent\"\r\n700\r\n12\r\n\"Car\"\r\n1250.5\r\n20\r\n\"Phone\"\r\n40.5\r\n"));
        QCOMPARE(State.Creditors(2), (CreditorRecord{u"Car"_s, 12, Dollars(1250.5)}));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void AFileEditedByHandKeepsItsOrderUntilTheNextCommit()
    {
        CommitmentsDesk desk;
        Open(desk, "3\r\n20\r\n\"Phone\"\r\n40.5\r\n5\r\n\"Rent\"\r\n700\r\n12\r\n\"Car\"\r\n150\r\n");
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Phone"_s, u"Rent"_s, u"Car"_s}));
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"20 | $40.50 | Phone"_s);
        QVERIFY(desk.TakeFiles().isEmpty()); // listing wrote nothing

        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Rent"_s, u"Car"_s, u"Phone"_s}));
        QCOMPARE(File(desk),
                 QByteArray("3\r\n5\r\n\"Rent\"\r\n700\r\n12\r\n\"Car\"\r\n150\r\n20\r\n\"Phone\"\r\n40.5\r\n"));
    }

    void ThePanelKeepsModeAndTextSoThatLikeEntriesFollow()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u" 5 "_s, u"(3.75)"_s, u"Cashback"_s);
        Click(Window, Commit);
        QCOMPARE(Texts(Window, Fields), u"5 | ($3.75) | Cashback"_s); // in their normal forms
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QVERIFY(IsEnabled(Window, Commit));
        Type(Window, Fields[2], u"Cashback 2"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Cashback"_s, u"Cashback 2"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n5\r\n\"Cashback\"\r\n-3.75\r\n5\r\n\"Cashback 2\"\r\n-3.75\r\n"));
    }

    void AFractionOfADayIsRounded()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"2.5"_s, u"10"_s, u"Half"_s);
        Click(Window, Commit);
        QCOMPARE(TextOf(Window, Fields[0]), u"2"_s); // ties go to even
        QCOMPARE(State.Creditors(1).CreditorDueDate, qint16(2));
        QCOMPARE(File(desk), QByteArray("1\r\n2\r\n\"Half\"\r\n10\r\n"));
    }

    void AChangedCreditorMovesToItsDay()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Enter(u"28"_s, u"710"_s, u"Rent"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Phone"_s, u"Rent"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n20\r\n\"Phone\"\r\n40.5\r\n28\r\n\"Rent\"\r\n710\r\n"));
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QVERIFY(IsEnabled(Window, Commit));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void TheLastDayThatEveryMonthHasAndANegativeAmountPass()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"28"_s, u"-5"_s, u"Refund"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n28\r\n\"Refund\"\r\n-5\r\n"));
    }
};

REGISTER_TEST(gui_frmCreditors)
#include "gui_frmCreditors.moc"
