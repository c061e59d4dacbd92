// The captions that the tutor's pages and the tips name are those on the screen.
#include "Captions.h"
#include "GuiDesk.h"
#include "GuidanceTexts.h"
#include "TestProgram.h"

#include "debt/PayOffPlan.h"
#include "mainwindow/MainMenu.h"

namespace {

const QString Main = u"frmMain"_s;

/// A window that a page is about, with the buttons that bring up the captions it has only later.
struct Panel {
    QString Window;
    QStringList Clicks;
};
const Panel Creditors{u"frmCreditors"_s, {u"cmdListCreditors"_s, u"cmdAddCreditor"_s}};
const Panel Regulars{u"frmRegulars"_s, {u"cmdListRegularItems"_s, u"cmdAddRegularItem"_s}};
const Panel Extras{u"frmExtras"_s, {u"cmdListPayPeriods"_s, u"lstExtraItems"_s, u"cmdAddExtraItem"_s}};
const Panel Forecast{u"frmSavingsForecast"_s, {}};
const Panel Settings{u"frmEnvironmentSettings"_s, {}};
const Panel Shelf{u"frmMasterShoppingList"_s, {}};
const Panel NewItem{u"frmAddItem"_s, {}};
const Panel List{u"frmCurrentShoppingList"_s, {}};

/// Each page's windows beside the main window, which any page may name.
const QList<QList<Panel>> &WindowsOfPages()
{
    static const QList<QList<Panel>> windows{
        {{u"frmAverageNetPercentage"_s, {}}},
        {{u"frmBudget"_s, {}}},
        {Creditors},
        {List},
        {Settings},
        {Extras, {u"frmScanPayPeriods"_s, {}}},
        {{u"frmInterestRateCalculator"_s, {}}},
        {{u"frmPaymentCalculator"_s, {}}, {u"frmSelectMonth"_s, {}}},
        {Shelf, NewItem},
        {},
        {List},
        {{u"frmMonthlyOverhead"_s, {}}},
        {{u"frmPayOff"_s, {}}, {u"frmInput"_s, {}}, {u"frmCreditorInfo"_s, {}}},
        {List},
        {{u"frmPrinter"_s, {}}},
        {{u"frmProjects"_s, {}}, Forecast},
        {Regulars},
        {{u"frmSavings"_s, {}}},
        {Forecast, Settings},
        {{u"frmScanPayPeriods"_s, {}}, Settings},
        {},
        {{u"frmSetCurrentPayPeriod"_s, {}}},
        {{u"frmTip"_s, {}}},
        {{u"frmCalculateWages"_s, {}}, {u"frmTotalHours"_s, {}}},
        {Shelf, NewItem},
        {Shelf},
    };
    return windows;
}

/// What a window says on its controls, headings and menus as it stands.
QSet<QString> CaptionsOf(const Form &window)
{
    QSet<QString> captions{Plain(window.windowTitle())};
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        if (qobject_cast<const QMenu *>(control) || control->isVisibleTo(&window))
            for (const QString &caption : CaptionsOf(*control))
                captions += caption;
    }
    return captions;
}

/// The captions of a window from its showing to the last of its clicks.
QSet<QString> CaptionsOf(const Panel &panel)
{
    Show(panel.Window);
    QSet<QString> captions = CaptionsOf(*TheWindows.Loaded(panel.Window));
    for (const QString &control : panel.Clicks) {
        if (qobject_cast<ListBox *>(&Find(panel.Window, control)))
            ClickRow(panel.Window, control, 0);
        else
            Click(panel.Window, control);
        captions += CaptionsOf(*TheWindows.Loaded(panel.Window));
    }
    return captions;
}

/// The program as it runs, with everything there that a window needs to be shown.
class RunningProgram : public GuiDesk
{
public:
    RunningProgram()
    {
        WriteFile(u"extra.txt"_s, "1\r\n\"01-08-2004\"\r\n1\r\n\"Gift\"\r\n50\r\n");
        StartProgram();
        RedimPayOffCreditors(u"1"_s);
    }
    ~RunningProgram() override
    {
        TheWindows.Reset();
        TakeAll();
    }
};

QSet<QString> MenuCaptions()
{
    QSet<QString> captions;
    for (const MenuEntry &entry : MainMenu())
        captions += Plain(entry.Caption);
    captions -= QString();
    return captions;
}

} // namespace

class gui_instructions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachCaptionOfAPageIsOnTheScreen_data()
    {
        QTest::addColumn<int>("page");
        for (int page = 1; page <= MostTutorPages; ++page)
            QTest::addRow("page %d", page) << page;
    }
    void EachCaptionOfAPageIsOnTheScreen()
    {
        QFETCH(int, page);
        QCOMPARE(WindowsOfPages().size(), MostTutorPages);
        RunningProgram program;
        QSet<QString> captions = MenuCaptions() + CaptionsOf(*TheWindows.Loaded(Main));
        for (const Panel &panel : WindowsOfPages()[page - 1]) {
            QVERIFY2(TheWindows.Knows(panel.Window), qPrintable(panel.Window));
            captions += CaptionsOf(panel);
        }
        const QStringList quoted = QuotedCaptions(LinesOfPage(page).join(u'\n'));
        QVERIFY(!quoted.isEmpty());
        for (const QString &caption : quoted)
            QVERIFY2(captions.contains(caption), qPrintable(caption));
    }

    void EachCaptionOfATipIsOnTheScreen()
    {
        RunningProgram program;
        QSet<QString> captions = MenuCaptions() + CaptionsOf(*TheWindows.Loaded(Main));
        QSet<QString> seen;
        for (const QList<Panel> &windows : WindowsOfPages())
            for (const Panel &panel : windows)
                if (TheWindows.Knows(panel.Window) && !seen.contains(panel.Window)) {
                    seen += panel.Window;
                    captions += CaptionsOf(panel);
                }
        const QStringList quoted = QuotedCaptions(LinesOf(TipFile).join(u'\n'));
        QVERIFY(!quoted.isEmpty());
        for (const QString &caption : quoted)
            QVERIFY2(captions.contains(caption), qPrintable(caption));
    }
};

REGISTER_TEST(gui_instructions)
#include "gui_instructions.moc"
