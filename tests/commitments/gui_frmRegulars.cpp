// What the window of the regular items does by itself: items keep their places, and a new one is committed once. The
// rest is in gui_listpanels.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmRegulars"_s;
const QString List = u"lstRegulars"_s;
const QString Commit = u"cmdAddChangeRegularItem"_s;
const QString Amount = u"txtRegularAmount"_s;
const QString Item = u"txtRegularItem"_s;
const QStringList Fields{Amount, Item};

const QByteArray TwoItems = "2\r\n\"Groceries\"\r\n120\r\n\"Bus\"\r\n15.25\r\n";

void Open(const CommitmentsDesk &desk, const QByteArray &file = TwoItems)
{
    desk.WriteFile(u"regulars.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListRegularItems"_s);
}

void Enter(const QString &amount, const QString &item)
{
    Type(Window, Amount, amount);
    Type(Window, Item, item);
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"regulars.txt"_s);
}

} // namespace

class gui_frmRegulars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ANewItemGoesToTheEndAndTheButtonIsDisabledAfterwards()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddRegularItem"_s);
        Enter(u"1,000"_s, u"Apples"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Groceries"_s, u"Bus"_s, u"Apples"_s}));
        QCOMPARE(File(desk), QByteArray("3\r\n\"Groceries\"\r\n120\r\n\"Bus\"\r\n15.25\r\n\"Apples\"\r\n1000\r\n"));
        QVERIFY(!IsEnabled(Window, Commit));
        QCOMPARE(Texts(Window, Fields), u"$1,000.00 | Apples"_s); // the text stays
        QCOMPARE(Enabled(Window, Fields), Fields.join(u' '));
        Click(Window, u"cmdAddRegularItem"_s); // the next one
        QVERIFY(IsEnabled(Window, Commit));
    }

    void AChangedItemKeepsItsPlaceAndTheButtonStays()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Enter(u"0"_s, u"Zucchini"_s); // nothing is an amount, too
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Zucchini"_s, u"Bus"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n\"Zucchini\"\r\n0\r\n\"Bus\"\r\n15.25\r\n"));
        QVERIFY(IsEnabled(Window, Commit));
        QCOMPARE(SelectedRow(Window, List), -1);
    }
};

REGISTER_TEST(gui_frmRegulars)
#include "gui_frmRegulars.moc"
