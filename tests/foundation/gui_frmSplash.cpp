// The splash: the tip that it shows or not, and how it hands over to the main window.
#include "GuiDesk.h"
#include "TestProgram.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmSplash"_s;

class Toy : public Form
{
};

/// The tip's window: notes what stands there when it comes, and closes itself.
class TipToy : public Form
{
public:
    void Activate() override
    {
        ++Shown;
        MainWasThere = TheWindows.Loaded(u"frmMain"_s);
        WasModal = windowModality() == Qt::ApplicationModal;
        QTimer::singleShot(0, this, [] { TheWindows.Unload(u"frmTip"_s); });
    }
    inline static int Shown = 0;
    inline static bool MainWasThere = false;
    inline static bool WasModal = false;
};

void DeclareToys()
{
    TipToy::Shown = 0;
    TheWindows.Register(u"frmTip"_s, [] { return new TipToy; });
    TheWindows.Register(u"frmWelcome"_s, [] { return new Toy; });
    TheWindows.Register(u"frmHowDoI"_s, [] { return new Toy; });
    TheWindows.Register(u"frmGettingStarted"_s, [] { return new Toy; });
    State.CurrentPayPeriodConfirmed = true; // the question is the main window's matter
}

} // namespace

class gui_frmSplash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblCorvelles"_s), u"The Corvelle's"_s);
        QCOMPARE(TextOf(Window, u"lblTallymere"_s), u"$TALLYMERE$"_s);
        QCOMPARE(TextOf(Window, u"cmdContinue"_s), u"Click Here to Continue"_s);
        QCOMPARE(FocusOf(Window), u"cmdContinue"_s);
    }

    void TheWelcomeWindowGoesWhenALevelWasChosen()
    {
        for (const bool pending : {false, true}) {
            GuiDesk desk;
            DeclareToys();
            Show(u"frmWelcome"_s);
            State.WelcomeLevelPending = pending;
            Show(Window);
            QCOMPARE(IsShown(u"frmWelcome"_s), !pending);
            QCOMPARE(ActiveWindow(), Window);
            QVERIFY(!desk.Ended);
        }
    }

    void TheTipIsShownUnlessAGuideOrTheOptionForbidsIt_data()
    {
        QTest::addColumn<bool>("pending");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("tips");
        QTest::newRow("no welcome, option missing") << false << 0 << QString() << 1;
        QTest::newRow("no welcome, option 1") << false << 0 << u"1"_s << 1;
        QTest::newRow("no welcome, option 0") << false << 0 << u"0"_s << 0;
        QTest::newRow("no welcome, option 5") << false << 0 << u"5"_s << 0;
        QTest::newRow("level 0 asks for the route") << true << 0 << u"1"_s << 0;
        QTest::newRow("level 1 asks for How Do I") << true << 1 << u"1"_s << 0;
        QTest::newRow("level 2") << true << 2 << u"1"_s << 1;
        QTest::newRow("level 3") << true << 3 << u"1"_s << 1;
        QTest::newRow("level 2, option 0") << true << 2 << u"0"_s << 0;
    }
    void TheTipIsShownUnlessAGuideOrTheOptionForbidsIt()
    {
        QFETCH(bool, pending);
        QFETCH(int, level);
        QFETCH(QString, option);
        QFETCH(int, tips);
        GuiDesk desk;
        DeclareToys();
        if (!option.isNull())
            desk.Options[u"show tips at startup"_s] = option;
        State.WelcomeLevelPending = pending;
        State.WelcomeLevel = level;
        Show(Window);
        Click(Window, u"cmdContinue"_s);
        QCOMPARE(TipToy::Shown, tips);
        if (tips > 0) {
            QVERIFY(TipToy::WasModal);
            QVERIFY(!TipToy::MainWasThere); // it holds the main window up
        }
        QVERIFY(IsShown(u"frmMain"_s));
        QVERIFY(!TheWindows.Loaded(u"frmTip"_s));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }

    void TheHourglassCoversTheLoading()
    {
        GuiDesk desk;
        DeclareToys();
        bool loading = false;
        TheDesk.StartCalculator = [&] { loading = desk.HourglassCalls == QList<bool>{true} && IsShown(Window); };
        Show(Window);
        Click(Window, u"cmdContinue"_s);
        QVERIFY(loading); // while the files are read the splash stands there under the hourglass
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false}));
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }

    void ClosingItByItsFrameEndsTheProgramAndSavesNothing()
    {
        GuiDesk desk;
        Show(Window);
        desk.RemoveFile(u"environm.ini"_s);
        CloseByFrame(Window);
        QTRY_VERIFY(desk.Ended);
        QVERIFY(desk.ReadFile(u"environm.ini"_s).isNull());
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
    }
};

REGISTER_TEST(gui_frmSplash)
#include "gui_frmSplash.moc"
