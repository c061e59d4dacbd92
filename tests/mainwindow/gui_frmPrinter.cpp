// The printer, the font and the test page.
#include "ErrorOf.h"
#include "GuiDesk.h"
#include "TestProgram.h"
#include "foundation/StartAndEnd.h"
#include "mainwindow/TestPage.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmPrinter"_s;
const QString PrinterSelect = u"cmdPrinterSelect"_s;
const QString FontSelect = u"cmdFontSelect"_s;
const QString PrintTest = u"cmdPrintTest"_s;
const QString Done = u"cmdDone"_s;

PrintFont Settings()
{
    return {State.PrintFontName,      State.PrintFontSize,       State.PrintFontBold, State.PrintFontItalic,
            State.PrintFontUnderline, State.PrintFontStrikethru, State.PrintFontColor};
}

const PrintFont StartFont{u"Courier"_s, 8};

/// Fonts that differ in one setting each from the one that everything starts with.
QList<QPair<const char *, PrintFont>> FontsByOneSetting()
{
    QList<QPair<const char *, PrintFont>> fonts{
        {"name", StartFont},      {"size", StartFont},          {"bold", StartFont},  {"italic", StartFont},
        {"underline", StartFont}, {"strikethrough", StartFont}, {"colour", StartFont}};
    fonts[0].second.Name = u"DejaVu Serif"_s;
    fonts[1].second.Size = 10.5F;
    fonts[2].second.Bold = true;
    fonts[3].second.Italic = true;
    fonts[4].second.Underline = true;
    fonts[5].second.Strikethru = true;
    fonts[6].second.Color = 0x5A10C8;
    return fonts;
}

const PrintFont OtherFont{u"DejaVu Serif"_s, 10.5F, true, true, true, true, 0x5A10C8};

const QStringList TestPage{u"The output of Tallymere is not intended to be fancy"_s,
                           u"as a flyer or camera-ready copy of a brochure. Therefore,"_s,
                           u"the layouts are simple, to-the-point and easy to read -"_s,
                           u"the bottom line. The Printer Setup window allows you to adjust"_s,
                           u"your printer settings to take advantage of the information"_s,
                           u"Tallymere provides."_s,
                           {},
                           u"To access the Printer Setup window, you must be in the Main Menu."_s,
                           u"First, you click on the Options menu, then click on Printer"_s,
                           u"Setup. Another way to access the Printer Setup window is by"_s,
                           u"pressing F2. The easiest way to access this window is by"_s,
                           u"clicking on the Printer Setup icon on the Easy Access Toolbar."_s,
                           {},
                           u"Once you are in the Printer Setup window, you will note its"_s,
                           u"standard Windows look and feel. Although several choices"_s,
                           u"confront you, for Tallymere's simple output, you only need"_s,
                           u"to set Orientation for Portrait and Paper Size to Letter"_s,
                           u"8 1/2 x 11, unless you desire something different."_s,
                           {},
                           u"Once you are satisfied with your printer settings, click OK"_s,
                           u"or press Enter to exit the Printer Setup window."_s};

} // namespace

class gui_frmPrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindow()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Printer Setup"_s);
        QCOMPARE(TextOf(Window, PrinterSelect), u"&Printer Select..."_s);
        QCOMPARE(TextOf(Window, FontSelect), u"&Font Select..."_s);
        QCOMPARE(TextOf(Window, PrintTest), u"Print &Test"_s);
        QCOMPARE(TextOf(Window, Done), u"&Done"_s);
        QCOMPARE(FocusOf(Window), PrinterSelect);
        for (const QString &next : {FontSelect, PrintTest, Done, PrinterSelect}) {
            QTest::keyClick(&Find(Window, FocusOf(Window)), Qt::Key_Tab);
            QCOMPARE(FocusOf(Window), next);
        }
    }

    void ItOpensFromTheMenuAndTheToolbarsKey()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuOptionsPrinterSetup"_s);
        QCOMPARE(ActiveWindow(), Window);
        Click(Window, Done);
        QVERIFY(!TheWindows.Loaded(Window));
        QTest::keyClick(TheWindows.Loaded(u"frmMain"_s), Qt::Key_F2);
        QCOMPARE(ActiveWindow(), Window);
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }

    void TheAccessKeys()
    {
        GuiDesk desk;
        Show(Window);
        desk.PrinterAnswers = {false};
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_P, Qt::AltModifier);
        QVERIFY(desk.PrinterAnswers.isEmpty());
        desk.FontAnswers = {std::nullopt};
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_F, Qt::AltModifier);
        QVERIFY(desk.FontAnswers.isEmpty());
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_T, Qt::AltModifier);
        QCOMPARE(desk.TakePrinted().Lines, TestPage);
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_D, Qt::AltModifier);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    // The printer itself is kept behind the desk; the window knows nothing of it.
    void APrinterIsAskedFor_data()
    {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("chosen") << true;
        QTest::newRow("cancelled") << false;
    }
    void APrinterIsAskedFor()
    {
        QFETCH(bool, chosen);
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        desk.PrinterAnswers = {chosen};
        Click(Window, PrinterSelect);
        QVERIFY(desk.PrinterAnswers.isEmpty());
        QCOMPARE(Settings(), StartFont);
        QVERIFY(IsShown(Window));
    }

    void AChosenFontIsThatOfTheReports_data()
    {
        QTest::addColumn<PrintFont>("font");
        for (const auto &[setting, font] : FontsByOneSetting())
            QTest::newRow(setting) << font;
        QTest::newRow("all of them") << OtherFont;
    }
    void AChosenFontIsThatOfTheReports()
    {
        QFETCH(PrintFont, font);
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        desk.FontAnswers = {font};
        Click(Window, FontSelect);
        QVERIFY(Settings() == font);
        Click(Window, PrintTest);
        QVERIFY(desk.TakePrinted().Font == font);
    }

    void CancellingTheFontDialogKeepsAllSeven()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        desk.FontAnswers = {OtherFont, std::nullopt};
        Click(Window, FontSelect);
        Click(Window, FontSelect);
        QVERIFY(desk.FontAnswers.isEmpty());
        QVERIFY(Settings() == OtherFont);
    }

    void ItSaysWhatHoldsNow()
    {
        GuiDesk desk;
        desk.StartProgram();
        desk.PrinterInUse = u"Office"_s;
        Show(Window);
        const QString printer = u"lblPrinterNow"_s, font = u"lblFontNow"_s;
        QCOMPARE(TextOf(Window, printer), u"Now: Office"_s);
        QCOMPARE(TextOf(Window, font), u"Now: Courier, 8 points, black"_s);
        desk.PrinterAnswers = {true};
        desk.PrinterInUse = u"PDF files in A & <b>B"_s;
        Click(Window, PrinterSelect);
        QCOMPARE(TextOf(Window, printer), u"Now: PDF files in A & <b>B"_s);
        QCOMPARE(Find<QLabel>(Window, printer).textFormat(), Qt::PlainText);
        QVERIFY(!Find<QLabel>(Window, printer).buddy()); // whose "&" would be an access key
        desk.FontAnswers = {PrintFont{u"DejaVu Serif"_s, 10.5F, true, true, true, true, 0x0000FF}, std::nullopt,
                            OtherFont};
        const QString named = u"Now: DejaVu Serif, 10.5 points, bold, italic, underlined, struck out"_s;
        for (const char *colour : {", red", ", red", ""}) { // red stands lowest; the last colour has no name
            Click(Window, FontSelect);
            QCOMPARE(TextOf(Window, font), named + QLatin1String(colour));
        }
        QCOMPARE(TextOf(Window, u"lblPrinterSelect"_s), u"The printer of all reports, with its paper and copies"_s);
        QCOMPARE(TextOf(Window, u"lblFontSelect"_s), u"The font of all reports, with its size, style and color"_s);
    }

    void AFailingDialogCountsAsACancelledOne()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        TheDesk.AskPrinter = []() -> bool { RaiseError(RuntimeError::DeviceError); };
        TheDesk.AskFont = []() -> std::optional<PrintFont> { RaiseError(RuntimeError::DeviceError); };
        Click(Window, PrinterSelect);
        Click(Window, FontSelect);
        QVERIFY(Settings() == StartFont);
        QVERIFY(IsShown(Window)); // and no message, or the desk would fail the test
    }

    void TheTestPage()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        Click(Window, PrintTest);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Lines, TestPage);
        QCOMPARE(page.Name, u"Test Page"_s);
        QVERIFY(page.Font == StartFont);
        Click(Window, PrintTest);
        QCOMPARE(desk.TakePrinted().Lines, TestPage); // a document of its own
    }

    void APrinterThatFailsIsNobodysToTrap()
    {
        GuiDesk desk;
        Show(Window);
        TheDesk.PrintDocument = [](const PrintJob &) { RaiseError(RuntimeError::DeviceError); };
        QCOMPARE(ErrorOf(PrintTestPage), 57);
        QCOMPARE(ErrorOf([] { Find<QAbstractButton>(Window, PrintTest).click(); }), 57);
    }

    void TheSettingsLiveForOneRun()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        desk.FontAnswers = {OtherFont};
        Click(Window, FontSelect);
        QVERIFY(Settings() == OtherFont);
        Click(Window, Done);
        Show(Window);
        QVERIFY(Settings() == OtherFont); // as long as the run lasts
        InitializeVariables();
        QVERIFY(Settings() == StartFont);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        // No file and no option was written, or the desk would fail the test.
    }

    void EscClosesIt()
    {
        GuiDesk desk;
        Show(Window);
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_Escape);
        Settle();
        QVERIFY(!TheWindows.Loaded(Window));
    }
};

REGISTER_TEST(gui_frmPrinter)
#include "gui_frmPrinter.moc"
