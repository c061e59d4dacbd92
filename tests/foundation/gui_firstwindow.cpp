// Which window comes first, and how an option is read that somebody has edited.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "Windows.h"
#include "foundation/Options.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Toy : public Form
{
};

void Rows()
{
    QTest::addColumn<QString>("option"); // null: missing
    QTest::addColumn<double>("value");
    QTest::newRow("missing") << QString() << 1.0;
    QTest::newRow("1") << u"1"_s << 1.0;
    QTest::newRow("0") << u"0"_s << 0.0;
    QTest::newRow("another number") << u"5"_s << 5.0;
    QTest::newRow("blanks around") << u" 1 "_s << 1.0;
    QTest::newRow("no number counts as missing") << u"x"_s << 1.0;
    QTest::newRow("so does nothing") << u""_s << 1.0;
    QTest::newRow("and a number beyond every range") << u"1e999"_s << 1.0;
}

} // namespace

class gui_firstwindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnOptionIsANumber_data() { Rows(); }
    void AnOptionIsANumber()
    {
        QFETCH(QString, option);
        QFETCH(double, value);
        for (const QString &name : {ShowWelcome, ShowTips, ShowTutor}) {
            FakeDesk desk;
            if (!option.isNull())
                desk.Options[name.toLower()] = option;
            QCOMPARE(OptionValue(name), value);
        }
    }

    void AnOptionIsSavedAs1Or0()
    {
        FakeDesk desk;
        SaveOption(ShowTips, false);
        QCOMPARE(desk.TakeOption(u"show tips at startup"_s), u"0"_s);
        QCOMPARE(OptionValue(ShowTips), 0.0);
        QCOMPARE(OptionValue(ShowWelcome), 1.0); // each is its own
        SaveOption(ShowTips, true);
        QCOMPARE(desk.TakeOption(u"show tips at startup"_s), u"1"_s);
    }

    void TheWelcomeWindowComesFirstAtExactly1_data() { Rows(); }
    void TheWelcomeWindowComesFirstAtExactly1()
    {
        QFETCH(QString, option);
        QFETCH(double, value);
        GuiDesk desk;
        TheWindows.Register(u"frmWelcome"_s, [] { return new Toy; });
        if (!option.isNull())
            desk.Options[u"show welcome at startup"_s] = option;
        QCOMPARE(FirstWindow(), value == 1 ? u"frmWelcome"_s : u"frmSplash"_s);
        QVERIFY(TheWindows.Knows(FirstWindow()));
    }
};

REGISTER_TEST(gui_firstwindow)
#include "gui_firstwindow.moc"
