// The tip of the day: which line is shown, the option, and that the splash waits for it.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/Options.h"

#include <QScrollArea>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmTip"_s;
const QString File = u"TIPOFDAY.TXT"_s;
const QString NotFound =
    u"That the TIPOFDAY.TXT file was not found? \n\nCreate a text file named TIPOFDAY.TXT using NotePad with 1 tip per "
    "line. Then place it in the same directory as the application. "_s;

QString Tip()
{
    return TextOf(Window, u"lblTipText"_s);
}

} // namespace

class gui_frmTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns()
    {
        GuiDesk desk;
        desk.WriteFile(File, "One\r\n");
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Tallymere Tip of the Day"_s);
        QCOMPARE(TextOf(Window, u"lblHeading"_s), u"Did you know..."_s);
        QCOMPARE(TextOf(Window, u"chkLoadTipsAtStartup"_s), u"&Show Tips at Startup"_s);
        QCOMPARE(TextOf(Window, u"cmdNextTip"_s), u"&Next Tip"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"OK"_s);
        QVERIFY(Find<QCheckBox>(Window, u"chkLoadTipsAtStartup"_s).isChecked());
        QCOMPARE(desk.SavedOptions, QSet<QString>()); // it comes checked, nobody has clicked
        QCOMPARE(FocusOf(Window), u"cmdOK"_s);
    }

    void TheTipsAreDrawnByTheRandomNumbers()
    {
        GuiDesk desk;
        desk.WriteFile(File, "One\r\nTwo\r\nThree\r\nFour\r\n");
        desk.RandomNumbers = {0.5, 0.0, 0.999, 0.999, 0.25};
        Show(Window);
        QCOMPARE(Tip(), u"Three"_s);
        QStringList shown;
        for (int draw = 0; draw < 4; ++draw) {
            Click(Window, u"cmdNextTip"_s);
            shown += Tip();
        }
        QCOMPARE(shown, (QStringList{u"One"_s, u"Four"_s, u"Four"_s, u"Two"_s})); // the same one may come twice
    }

    void ABlankLineIsATip()
    {
        GuiDesk desk;
        desk.WriteFile(File, "One\r\n\r\nThree\r\n");
        desk.RandomNumbers = {0.0, 0.4};
        Show(Window);
        Click(Window, u"cmdNextTip"_s);
        QCOMPARE(Tip(), QString());
    }

    void ATipIsShownAsItStands()
    {
        GuiDesk desk;
        desk.WriteFile(File, "  <b>A tip</b> &amp; more  \r\n");
        Show(Window);
        QCOMPARE(Tip(), u"  <b>A tip</b> &amp; more  "_s);
        QCOMPARE(Find<QLabel>(Window, u"lblTipText"_s).textFormat(), Qt::PlainText);
    }

    void AnEmptyFileLeavesTheTextAsItWas()
    {
        GuiDesk desk;
        desk.WriteFile(File, "");
        desk.RandomNumbers = {0.5, 0.5}; // it draws all the same
        Show(Window);
        QCOMPARE(Tip(), QString());
        Click(Window, u"cmdNextTip"_s);
        QCOMPARE(Tip(), QString());
    }

    void AMissingFileIsToldAndTheButtonDoesNothing()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(Tip(), NotFound);
        Click(Window, u"cmdNextTip"_s);
        QCOMPARE(Tip(), NotFound);
    }

    void ItIsFoundBeforeTheMainWindowHasSetThePath()
    {
        GuiDesk desk;
        desk.WriteFile(File, "One\r\n");
        State.ApplicationPath.clear(); // as it is at the splash
        Show(Window);
        QCOMPARE(Tip(), u"One"_s);
    }

    void TheBoxSavesTheOptionAtOnce()
    {
        GuiDesk desk;
        desk.WriteFile(File, "One\r\n");
        Show(Window);
        Click(Window, u"chkLoadTipsAtStartup"_s);
        QCOMPARE(desk.TakeOption(ShowTips), u"0"_s);
        QCOMPARE(OptionValue(ShowTips), 0.0);
        Click(Window, u"chkLoadTipsAtStartup"_s);
        QCOMPARE(desk.TakeOption(ShowTips), u"1"_s);
        // What code does to it counts as a click, too.
        Find<QCheckBox>(Window, u"chkLoadTipsAtStartup"_s).setChecked(false);
        QCOMPARE(desk.TakeOption(ShowTips), u"0"_s);
        Find<QCheckBox>(Window, u"chkLoadTipsAtStartup"_s).setChecked(false);
        QCOMPARE(desk.TakeOption(ShowTips), QString());
        Click(Window, u"cmdOK"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(desk.SavedOptions, QSet<QString>());
    }

    void TheSplashWaitsForIt_data()
    {
        QTest::addColumn<QString>("way");
        for (const QString &way : {u"OK"_s, u"Enter"_s, u"Esc"_s, u"the frame"_s})
            QTest::newRow(qPrintable(way)) << way;
    }
    void TheSplashWaitsForIt()
    {
        QFETCH(QString, way);
        GuiDesk desk;
        desk.WriteFile(File, "One\r\n");
        State.ApplicationPath.clear();
        State.CurrentPayPeriodConfirmed = true;
        bool waited = false;
        Show(u"frmSplash"_s);
        QTimer::singleShot(0, qApp, [&] {
            waited = ActiveWindow() == Window && !TheWindows.Loaded(u"frmMain"_s) &&
                     TheWindows.Loaded(Window)->windowModality() == Qt::ApplicationModal && Tip() == u"One"_s;
            if (way == u"OK"_s)
                Click(Window, u"cmdOK"_s);
            else if (way == u"the frame"_s)
                CloseByFrame(Window);
            else
                QTest::keyClick(&Find(Window, u"cmdOK"_s), way == u"Esc"_s ? Qt::Key_Escape : Qt::Key_Return);
        });
        Click(u"frmSplash"_s, u"cmdContinue"_s);
        QVERIFY(waited);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }

    void WithTheOptionOffTheSplashGoesOnAtOnce()
    {
        GuiDesk desk;
        desk.Options[ShowTips.toLower()] = u"0"_s;
        State.CurrentPayPeriodConfirmed = true;
        Show(u"frmSplash"_s);
        Click(u"frmSplash"_s, u"cmdContinue"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }

    void ALongTipIsScrolledAndMovesNothing()
    {
        GuiDesk desk;
        desk.WriteFile(File, "Short\r\n" + QByteArray("A tip that never ends. ").repeated(200) + "\r\n");
        desk.RandomNumbers = {0.0, 0.9};
        Show(Window);
        const QRect place = TheWindows.Loaded(Window)->geometry();
        const QRect button = Find(Window, u"cmdOK"_s).geometry();
        Click(Window, u"cmdNextTip"_s);
        QCOMPARE(TheWindows.Loaded(Window)->geometry(), place);
        QCOMPARE(Find(Window, u"cmdOK"_s).geometry(), button);
        const auto &text = Find<QLabel>(Window, u"lblTipText"_s);
        const auto &area = Find<QScrollArea>(Window, u"scrTipText"_s);
        QVERIFY(text.height() >= text.heightForWidth(text.width()));
        QVERIFY(area.viewport()->height() < text.height());
    }
};

REGISTER_TEST(gui_frmTip)
#include "gui_frmTip.moc"
