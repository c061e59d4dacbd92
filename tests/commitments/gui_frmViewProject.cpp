// The view of one project: headings, rows that are filled again on every return, red amounts, paper.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmViewProject"_s;
const QString GridName = u"grdViewProject"_s;

Grid &TheGrid()
{
    return Find<Grid>(Window, GridName);
}

/// One selected project whose installments of these dollars fall on January 1, 2, 3 and so on.
void TakeProject(const QString &name, const QList<double> &installments)
{
    State.NumberOfProjects = 1;
    State.ProjectNames = {name};
    State.ProjectAmounts.Redim(1);
    State.ProjectEntryCounts = {qint16(installments.size())};
    State.ProjectEntryDates.Redim(1);
    State.ProjectEntryAmounts.Redim(1);
    for (int i = 0; i < installments.size(); ++i) {
        State.ProjectEntryDates(1).At(i + 1) = u"01-0%1-2004"_s.arg(i + 1);
        State.ProjectEntryAmounts(1).At(i + 1) = Dollars(installments[i]);
    }
    Projects.SelectedProject = 1;
}

/// Goes to another window of the program and comes back.
void LeaveAndComeBack()
{
    if (!TheWindows.Knows(u"frmOther"_s))
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
    Show(u"frmOther"_s);
    Show(Window);
}

/// The colours of a row's amounts.
QPair<GridColour, GridColour> ColoursOf(int row)
{
    return {TheGrid().Colour(row, 1), TheGrid().Colour(row, 2)};
}

constexpr QPair<GridColour, GridColour> BothPlain{GridColour::Text, GridColour::Text};
constexpr QPair<GridColour, GridColour> BothRed{GridColour::LightRed, GridColour::LightRed};
constexpr QPair<GridColour, GridColour> InstallmentRed{GridColour::LightRed, GridColour::Text};
constexpr QPair<GridColour, GridColour> TotalRed{GridColour::Text, GridColour::LightRed};

} // namespace

class gui_frmViewProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpeningShowsTheProject()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40, 20});
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Boat"_s);
        QCOMPARE(GridRows(Window, GridName),
                 (QStringList{u"Pay Period | Installment | Accumulated"_s, u"January 1, 2004 | $40.00 | $40.00"_s,
                              u"January 2, 2004 | $20.00 | $60.00"_s}));
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Columns(), 3);
        QCOMPARE(grid.ColumnWidth(0), 1750);
        QCOMPARE(grid.ColumnWidth(1), 1447);
        QCOMPARE(grid.ColumnWidth(2), 1447);
        for (const int column : {0, 1, 2})
            QVERIFY(grid.Bold(0, column));
        QVERIFY(!grid.Bold(1, 0));
        QVERIFY(!grid.RightAligned(0));
        QVERIFY(grid.RightAligned(1));
        QVERIFY(grid.RightAligned(2));
        QCOMPARE(grid.CurrentRow(), 0);
        QCOMPARE(desk.Printed.size(), 0);
    }

    void ANameWithTheToolkitsMarkIsShownAsItIs()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat [*] A & B"_s, {40});
        Show(Window);
        // What the window system is given, not what the window was told to show.
        QCOMPARE(TheWindows.Loaded(Window)->windowHandle()->title(), u"Boat [*] A & B"_s);
    }

    void RedGoesByTheExactAmount()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40});
        State.ProjectEntryAmounts(1).At(1) = Currency::FromTenThousandths(-40); // shown as ($0.00) or $0.00
        Show(Window);
        QCOMPARE(ColoursOf(1), BothRed);
    }

    void AnOpenDocumentStaysOpenWithoutPrinting()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40});
        ThePrinter.Print(u"a page of another report"_s).NewLine();
        Show(Window);
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(ThePrinter.PendingLines(), QStringList{u"a page of another report"_s});
        ThePrinter.Reset();
    }

    void UnshownItIsCalledProject()
    {
        CommitmentsDesk desk;
        QCOMPARE(TheWindows.Touch(Window).windowTitle(), u"Project:"_s);
    }

    void ComingBackInsertsTheRowsAgainAboveTheEarlierOnes()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40, 20});
        Show(Window);
        const int rows = TheGrid().Rows();
        LeaveAndComeBack();
        QCOMPARE(GridRows(Window, GridName, 1),
                 (QStringList{u"January 1, 2004 | $40.00 | $40.00"_s, u"January 2, 2004 | $20.00 | $60.00"_s,
                              u"January 1, 2004 | $40.00 | $40.00"_s, u"January 2, 2004 | $20.00 | $60.00"_s}));
        QCOMPARE(TheGrid().Rows(), rows + 2);
    }

    void ANegativeInstallmentStandsInRed()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {50, -10, 20});
        Show(Window);
        QCOMPARE(GridRows(Window, GridName, 1),
                 (QStringList{u"January 1, 2004 | $50.00 | $50.00"_s, u"January 2, 2004 | ($10.00) | $40.00"_s,
                              u"January 3, 2004 | $20.00 | $60.00"_s}));
        QCOMPARE(ColoursOf(1), BothPlain);
        QCOMPARE(ColoursOf(2), InstallmentRed);
        QCOMPARE(ColoursOf(3), BothPlain);
        QCOMPARE(TheGrid().Colour(2, 0), GridColour::Text);
    }

    void TheTotalIsRedAsLongAsItIsBelowZero()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {-30, 10, 20, 5});
        Show(Window);
        QCOMPARE(GridRows(Window, GridName, 1),
                 (QStringList{u"January 1, 2004 | ($30.00) | ($30.00)"_s, u"January 2, 2004 | $10.00 | ($20.00)"_s,
                              u"January 3, 2004 | $20.00 | $0.00"_s, u"January 4, 2004 | $5.00 | $5.00"_s}));
        QCOMPARE(ColoursOf(1), BothRed);
        QCOMPARE(ColoursOf(2), TotalRed);
        QCOMPARE(ColoursOf(3), BothPlain);
        QCOMPARE(ColoursOf(4), BothPlain);
        QCOMPARE(ColoursOf(5), BothPlain);
    }

    void RedRowsAreWrittenOverWhatStoodThere()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {50, -10});
        Show(Window);
        LeaveAndComeBack();
        // The first row is inserted and pushes both down; the second is written over the first one of before.
        QCOMPARE(GridRows(Window, GridName, 1),
                 (QStringList{u"January 1, 2004 | $50.00 | $50.00"_s, u"January 2, 2004 | ($10.00) | $40.00"_s,
                              u"January 2, 2004 | ($10.00) | $40.00"_s}));
        QCOMPARE(ColoursOf(2), InstallmentRed);
        QCOMPARE(ColoursOf(3), BothPlain); // the row below a red one loses its colour
    }

    void EveryFillingPrintsUntilTheAnswerChanges()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40, -20});
        State.PrintProjectView = true;
        State.PrintFontName = u"Courier"_s;
        Show(Window);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Font.Name, u"Courier"_s);
        QCOMPARE(page.Lines,
                 (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                              {},
                              u"                                     Boat"_s,
                              {},
                              u"    Pay Period                       Installment             Accumulated"_s,
                              u"    ______________________________________________________________________"_s,
                              {},
                              u"    January 1, 2004                     $40.00                      $40.00"_s,
                              u"    January 2, 2004                   ($20.00)                      $20.00"_s}));
        QVERIFY(State.PrintProjectView);
        LeaveAndComeBack();
        QCOMPARE(desk.TakePrinted().Lines, page.Lines); // another copy: the total starts again at 0
        State.PrintProjectView = false;
        LeaveAndComeBack();
        QVERIFY(desk.Printed.isEmpty());
    }

    void AHundredInstallmentsHaveTheirRows()
    {
        CommitmentsDesk desk;
        TakeProject(u"Long"_s, {});
        State.ProjectEntryCounts(1) = MostProjectEntries;
        for (int entry = 1; entry <= MostProjectEntries; ++entry) {
            State.ProjectEntryDates(1).At(entry) = u"01-01-2004"_s;
            State.ProjectEntryAmounts(1).At(entry) = Dollars(-1); // the last row's colour reaches below it
        }
        Show(Window);
        QCOMPARE(TheGrid().Text(100, 2), u"($100.00)"_s);
        QCOMPARE(GridRows(Window, GridName, 1).size(), 100);
    }

    void AnotherProjectThatWasSelectedMeanwhileIsShownOnReturn()
    {
        CommitmentsDesk desk;
        desk.WriteFile(u"projects.txt"_s, "2\r\n\"Boat\"\r\n60\r\n1\r\n\"January 1, 2004\"\r\n60\r\n"
                                          "\"Lamp\"\r\n25\r\n1\r\n\"January 15, 2004\"\r\n25\r\n");
        Show(u"frmProjects"_s);
        Click(u"frmProjects"_s, u"cmdListProjects"_s);
        ClickRow(u"frmProjects"_s, u"lstProjects"_s, 0);
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Boat"_s);
        Show(u"frmProjects"_s);
        ClickRow(u"frmProjects"_s, u"lstProjects"_s, 1);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Boat"_s); // not before it comes back
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Lamp"_s);
        QCOMPARE(GridRows(Window, GridName, 1),
                 (QStringList{u"January 15, 2004 | $25.00 | $25.00"_s, u"January 1, 2004 | $60.00 | $60.00"_s}));
    }

    void AProjectThatWasDeletedMeanwhileLeavesTheViewAsItIs()
    {
        CommitmentsDesk desk;
        TakeProject(u"Boat"_s, {40, 20});
        Show(Window);
        const QStringList before = GridRows(Window, GridName);
        DeleteProject();
        LeaveAndComeBack();
        QCOMPARE(GridRows(Window, GridName), before);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Boat"_s);
        QVERIFY(!desk.Ended);
    }

    void TheTutorGoesOnWhileTheWindowIsLoaded()
    {
        CommitmentsDesk desk;
        desk.StartProgram();
        TakeProject(u"Boat"_s, {40, 20});
        Show(Window);
        QVERIFY(Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s).isActive());
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
    }
};

REGISTER_TEST(gui_frmViewProject)
#include "gui_frmViewProject.moc"
