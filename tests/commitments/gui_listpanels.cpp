// What the windows of creditors, regular items, extra items and projects have in common, each rule once for all of
// them: the list and its file, the panel and its modes, messages, focus and keys. What only one of them does stands in
// its own tests.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window, and a household with two records in its list.
struct Panel {
    QString Window;
    QString Title;
    int HelpContext;
    QString Menu;
    QString List, Read, Add, Delete, Commit;
    QStringList Buttons; ///< beside the list, in their order
    QString Captions;    ///< of the buttons
    QString Frame;
    QStringList Fields;
    QString Labels;     ///< of the fields
    QStringList Others; ///< further controls of the panel, behind the fields
    QString Amount;
    bool HasModes; ///< its commit is also for changes; projects are never edited
    bool KeepsOne; ///< the last record of the list cannot be deleted

    QString File;
    QString FileTitle; ///< of the file's messages
    QByteArray Before; ///< what stands in the file before the records and their count, and behind them
    QByteArray After;
    QList<QByteArray> Records;
    QStringList Names;
    QList<QStringList> Texts; ///< what the panel shows of each record

    QStringList Entry;      ///< a third record as it is typed
    QStringList EntryTexts; ///< and in its normal form
    QByteArray EntryRecord; ///< and in the file, where it goes to the end
    QByteArray EntryAmount; ///< its amount there

    QByteArray FileOf(const QList<QByteArray> &records) const
    {
        return Before + QByteArray::number(records.size()) + "\r\n" + records.join() + After;
    }
    QByteArray TwoRecords() const { return FileOf(Records); }
    /// The file with the third record, of another amount.
    QByteArray ThreeRecords(const QByteArray &amount) const
    {
        QByteArray entry = EntryRecord;
        entry.replace("\r\n" + EntryAmount + "\r\n", "\r\n" + amount + "\r\n");
        return FileOf(Records + QList<QByteArray>{entry});
    }
    QStringList Controls() const { return Buttons + Fields + Others + QStringList{Commit}; }
    QString Name() const { return Fields[HasModes ? Fields.size() - 1 : 0]; }
    Message UnknownError() const { return {UnknownErrorText, Title, Icon::Warning}; }
    Message FileError(const QString &text, const QString &routine) const
    {
        return {text, routine + u' ' + FileTitle, Icon::Stop};
    }
};

const QList<Panel> Panels{
    {.Window = u"frmCreditors"_s,
     .Title = u"Creditors"_s,
     .HelpContext = 22,
     .Menu = u"mnuFileCreditors"_s,
     .List = u"lstCreditors"_s,
     .Read = u"cmdListCreditors"_s,
     .Add = u"cmdAddCreditor"_s,
     .Delete = u"cmdDeleteCreditor"_s,
     .Commit = u"cmdAddChangeCreditor"_s,
     .Buttons = {u"cmdListCreditors"_s, u"cmdAddCreditor"_s, u"cmdDeleteCreditor"_s, u"cmdQuit"_s},
     .Captions = u"&List Creditors | &Add Creditor | &Delete Creditor | &Quit"_s,
     .Frame = u"Creditor Information"_s,
     .Fields = {u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s},
     .Labels = u"Due Date | Amount | Creditor"_s,
     .Others = {},
     .Amount = u"txtCreditorAmount"_s,
     .HasModes = true,
     .KeepsOne = false,
     .File = u"creditor.txt"_s,
     .FileTitle = u"Creditors"_s,
     .Before = {},
     .After = {},
     .Records = {"5\r\n\"Rent\"\r\n700\r\n", "20\r\n\"Phone\"\r\n40.5\r\n"},
     .Names = {u"Rent"_s, u"Phone"_s},
     .Texts = {{u"5"_s, u"$700.00"_s, u"Rent"_s}, {u"20"_s, u"$40.50"_s, u"Phone"_s}},
     .Entry = {u" 28 "_s, u"1,250.5"_s, u"Car"_s},
     .EntryTexts = {u"28"_s, u"$1,250.50"_s, u"Car"_s},
     .EntryRecord = "28\r\n\"Car\"\r\n1250.5\r\n",
     .EntryAmount = "1250.5"},
    {.Window = u"frmRegulars"_s,
     .Title = u"Regulars"_s,
     .HelpContext = 23,
     .Menu = u"mnuFileRegulars"_s,
     .List = u"lstRegulars"_s,
     .Read = u"cmdListRegularItems"_s,
     .Add = u"cmdAddRegularItem"_s,
     .Delete = u"cmdDeleteRegularItem"_s,
     .Commit = u"cmdAddChangeRegularItem"_s,
     .Buttons = {u"cmdListRegularItems"_s, u"cmdAddRegularItem"_s, u"cmdDeleteRegularItem"_s, u"cmdQuit"_s},
     .Captions = u"&List Regular Items | &Add Regular Items | &Delete Regular Items | &Quit"_s,
     .Frame = u"Regular Items Information"_s,
     .Fields = {u"txtRegularAmount"_s, u"txtRegularItem"_s},
     .Labels = u"Amount | Item"_s,
     .Others = {},
     .Amount = u"txtRegularAmount"_s,
     .HasModes = true,
     .KeepsOne = false,
     .File = u"regulars.txt"_s,
     .FileTitle = u"Regulars"_s,
     .Before = {},
     .After = {},
     .Records = {"\"Groceries\"\r\n120\r\n", "\"Bus\"\r\n15.25\r\n"},
     .Names = {u"Groceries"_s, u"Bus"_s},
     .Texts = {{u"$120.00"_s, u"Groceries"_s}, {u"$15.25"_s, u"Bus"_s}},
     .Entry = {u"(2.5)"_s, u"Allowance"_s},
     .EntryTexts = {u"($2.50)"_s, u"Allowance"_s},
     .EntryRecord = "\"Allowance\"\r\n-2.5\r\n",
     .EntryAmount = "-2.5"},
    {.Window = u"frmExtras"_s,
     .Title = u"Extras"_s,
     .HelpContext = 24,
     .Menu = u"mnuFileExtras"_s,
     .List = u"lstExtraItems"_s,
     .Read = u"cmdListPayPeriods"_s,
     .Add = u"cmdAddExtraItem"_s,
     .Delete = u"cmdDeleteExtraItem"_s,
     .Commit = u"cmdAddChangeExtraItem"_s,
     .Buttons = {u"cmdListPayPeriods"_s, u"cmdAddPayPeriod"_s, u"cmdDeletePayPeriod"_s, u"cmdAddExtraItem"_s,
                 u"cmdDeleteExtraItem"_s, u"cmdQuit"_s},
     .Captions = u"&List Pay Periods | &Add Pay Period | &Delete Pay Period | &Add Extra Item | &Delete Extra Item | "
                 "&Quit"_s,
     .Frame = u"Extra Items Information"_s,
     .Fields = {u"txtExtraItemAmount"_s, u"txtExtraItem"_s},
     .Labels = u"Amount | Item"_s,
     .Others = {u"chkCredit"_s},
     .Amount = u"txtExtraItemAmount"_s,
     .HasModes = true,
     .KeepsOne = true,
     .File = u"extra.txt"_s,
     .FileTitle = u"Pay Periods"_s,
     .Before = "2\r\n\"01-05-2004\"\r\n",
     .After = "\"01-19-2004\"\r\n1\r\n\"Trip\"\r\n200\r\n",
     .Records = {"\"Gift\"\r\n30\r\n", "\"Refund\"\r\n-12.5\r\n"},
     .Names = {u"Gift"_s, u"Refund"_s},
     .Texts = {{u"$30.00"_s, u"Gift"_s}, {u"($12.50)"_s, u"Refund"_s}},
     .Entry = {u"-7"_s, u"Bottles"_s},
     .EntryTexts = {u"($7.00)"_s, u"Bottles"_s},
     .EntryRecord = "\"Bottles\"\r\n-7\r\n",
     .EntryAmount = "-7"},
    {.Window = u"frmProjects"_s,
     .Title = u"Projects"_s,
     .HelpContext = 25,
     .Menu = u"mnuFileProjects"_s,
     .List = u"lstProjects"_s,
     .Read = u"cmdListProjects"_s,
     .Add = u"cmdAddProject"_s,
     .Delete = u"cmdDeleteProject"_s,
     .Commit = u"cmdNew"_s,
     .Buttons = {u"cmdListProjects"_s, u"cmdAddProject"_s, u"cmdDeleteProject"_s, u"cmdQuit"_s},
     .Captions = u"&List Projects | &Add Project | &Delete Project | &Quit"_s,
     .Frame = u"Project Information"_s,
     .Fields = {u"txtProject"_s, u"txtProjectAmount"_s, u"txtProjectCompletionDate"_s},
     .Labels = u"Project | Amount | Completion Date"_s,
     .Others = {},
     .Amount = u"txtProjectAmount"_s,
     .HasModes = false,
     .KeepsOne = false,
     .File = u"projects.txt"_s,
     .FileTitle = u"Projects"_s,
     .Before = {},
     .After = {},
     .Records = {"\"Boat\"\r\n60\r\n2\r\n\"January 1, 2004\"\r\n40\r\n\"January 8, 2004\"\r\n20\r\n",
                 "\"Lamp\"\r\n25\r\n1\r\n\"January 15, 2004\"\r\n25\r\n"},
     .Names = {u"Boat"_s, u"Lamp"_s},
     .Texts = {{u"Boat"_s, u"$60.00"_s, u"January 8, 2004"_s}, {u"Lamp"_s, u"$25.00"_s, u"January 15, 2004"_s}},
     .Entry = {u"Coat"_s, u"5"_s, u"January 1, 2004"_s},
     .EntryTexts = {u"Coat"_s, u"$5.00"_s, u"January 1, 2004"_s},
     .EntryRecord = "\"Coat\"\r\n5\r\n0\r\n",
     .EntryAmount = "5"}};

/// Reads the file and shows its records; those of the extras stand in a pay period, which is opened.
void Read(const Panel &panel)
{
    Click(panel.Window, panel.Read);
    if (panel.KeepsOne && !RowsOf(panel.Window, panel.List).isEmpty())
        ClickRow(panel.Window, panel.List, 0);
}

void Open(const CommitmentsDesk &desk, const Panel &panel)
{
    desk.WriteFile(panel.File, panel.TwoRecords());
    Show(panel.Window);
    Read(panel);
}

/// Types an entry. A completion date comes from the forecast; this one has no installments and funds enough.
void Enter(const Panel &panel, const QStringList &texts)
{
    for (qsizetype i = 0; i < texts.size(); ++i) {
        auto &field = Find<QLineEdit>(panel.Window, panel.Fields[i]);
        if (field.isReadOnly())
            field.setText(texts[i]);
        else
            Type(panel.Window, panel.Fields[i], texts[i]);
    }
    Forecast.ForecastPickRow = 0;
    Forecast.ForecastPickAccumulated = Dollars(1000);
}

void AddEntry(const Panel &panel, const QStringList &texts)
{
    Click(panel.Window, panel.Add);
    Enter(panel, texts);
}

QString Shown(const Panel &panel)
{
    return Texts(panel.Window, panel.Fields);
}

QString Joined(const QStringList &texts)
{
    return texts.join(u" | "_s);
}

QString Nothing(const Panel &panel)
{
    return Joined(QStringList(panel.Fields.size(), QString()));
}

/// What the panel and the buttons of the list itself allow.
QString Allowed(const Panel &panel)
{
    return Enabled(panel.Window, QStringList{panel.Read, panel.Add, panel.Delete, u"cmdQuit"_s} + panel.Fields +
                                     QStringList{panel.Commit});
}

enum class Which { All, WithModes, Emptied };

void AddPanels(Which which = Which::All)
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Panels.size(); ++i)
        if (which == Which::All || (which == Which::WithModes && Panels[i].HasModes) ||
            (which == Which::Emptied && !Panels[i].KeepsOne))
            QTest::newRow(qPrintable(Panels[i].Window)) << i;
}

const Panel &ThePanel()
{
    return Panels[*static_cast<int *>(QTest::qData("index", qMetaTypeId<int>()))];
}

} // namespace

class gui_listpanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns_data() { AddPanels(); }
    void TheCaptionsAreTheDesigns()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Show(panel.Window);
        QCOMPARE(TheWindows.Loaded(panel.Window)->windowTitle(), panel.Title);
        QCOMPARE(Texts(panel.Window, panel.Buttons), panel.Captions);
        QCOMPARE(TextOf(panel.Window, u"Frame1"_s), panel.Frame);
        QStringList labels;
        for (const QString &field : panel.Fields)
            labels += BuddyText(panel.Window, field);
        QCOMPARE(Joined(labels), panel.Labels);
        QCOMPARE(TextOf(panel.Window, panel.Commit), panel.HasModes ? u"&Change"_s : u"&New"_s);
        QCOMPARE(TabOrder(panel.Window), QStringList{panel.List} + panel.Controls());
        QVERIFY(Find<QLineEdit>(panel.Window, panel.Amount).alignment() & Qt::AlignRight);
    }

    void EveryFieldTellsWhatItIsFor_data() { AddPanels(); }
    void EveryFieldTellsWhatItIsFor()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Show(panel.Window);
        for (const QString &name : panel.Fields) {
            const auto &field = Find<QLineEdit>(panel.Window, name);
            QVERIFY2(!field.accessibleDescription().isEmpty(), qPrintable(name));
            QCOMPARE(field.toolTip(), field.accessibleDescription());
        }
    }

    void AmountsAndDatesAreSeenWhole_data() { AddPanels(); }
    void AmountsAndDatesAreSeenWhole()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Show(panel.Window);
        TheWindows.Loaded(panel.Window)->resize(TheWindows.Loaded(panel.Window)->minimumSizeHint());
        Settle();
        QStringList clipped;
        const auto check = [&](const QString &name, const QString &text) {
            auto &field = Find<QLineEdit>(panel.Window, name);
            field.setText(text);
            const auto caretAt = [&](int position) {
                field.setCursorPosition(position);
                field.grab(); // a field scrolls when it is drawn
                return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().x();
            };
            // In a text that is scrolled, the caret goes a shorter way than the text is long.
            if (caretAt(int(text.size())) - caretAt(0) < field.fontMetrics().horizontalAdvance(text) - 1)
                clipped += name;
        };
        check(panel.Amount, u"($99,999.99)"_s);
        if (!panel.HasModes)
            check(panel.Fields[2], u"September 30, 2004"_s);
        QCOMPARE(clipped, QStringList());
    }

    void TheListOpensWithWholeRows_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("scale");
        for (int i = 0; i < Panels.size(); ++i)
            for (const double scale : {1.0, 1.5, 2.0})
                QTest::addRow("%s, letters %g times as large", qPrintable(Panels[i].Window), scale) << i << scale;
    }
    void TheListOpensWithWholeRows()
    {
        const Panel &panel = ThePanel();
        QFETCH(double, scale);
        const QFont usual = QApplication::font();
        const auto putBack = qScopeGuard([&] { QApplication::setFont(usual); });
        QFont large = usual;
        large.setPointSizeF(scale * usual.pointSizeF());
        QApplication::setFont(large);
        CommitmentsDesk desk;
        Open(desk, panel);
        const auto &list = Find<ListBox>(panel.Window, panel.List);
        const int row = list.visualItemRect(list.item(0)).height();
        QVERIFY(row >= QFontMetrics(large).height());
        QCOMPARE(list.viewport()->height() % row, 0);
        QVERIFY(list.viewport()->height() / row >= 5);
        // It is no higher than that takes: at its own height the layout leaves less than a row.
        Form *form = TheWindows.Loaded(panel.Window);
        const int height = form->height();
        form->adjustSize();
        QVERIFY2(height - form->height() < row, qPrintable(QString::number(height - form->height())));
    }

    void AListThatHasWholeRowsAlreadyGetsNoMore_data() { AddPanels(); }
    void AListThatHasWholeRowsAlreadyGetsNoMore()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Show(panel.Window);
        const int height = Find(panel.Window, panel.List).height();
        Click(panel.Window, u"cmdQuit"_s);
        TheWindows.Touch(panel.Window);
        Find(panel.Window, panel.List).setMinimumHeight(height);
        Show(panel.Window);
        QCOMPARE(Find(panel.Window, panel.List).height(), height);
    }

    void AWindowThatComesBackKeepsTheHeightThatTheUserGaveIt_data() { AddPanels(); }
    void AWindowThatComesBackKeepsTheHeightThatTheUserGaveIt()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        Form *form = TheWindows.Loaded(panel.Window);
        const int height = form->height() + 5;
        form->resize(form->width(), height);
        form->hide();
        Show(panel.Window);
        QCOMPARE(form->height(), height);
    }

    void OpeningOffersTheListAlone_data() { AddPanels(); }
    void OpeningOffersTheListAlone()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        desk.WriteFile(panel.File, panel.TwoRecords());
        Show(panel.Window);
        QCOMPARE(Enabled(panel.Window, panel.Controls()), panel.Read + u" cmdQuit"_s);
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList());
        QCOMPARE(Shown(panel), Nothing(panel));
    }

    void ListingReadsTheFileEachTimeAndLetsAdd_data() { AddPanels(); }
    void ListingReadsTheFileEachTimeAndLetsAdd()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        QCOMPARE(RowsOf(panel.Window, panel.List), panel.Names);
        QCOMPARE(SelectedRow(panel.Window, panel.List), -1);
        QCOMPARE(Allowed(panel), panel.Read + u' ' + panel.Add + u" cmdQuit"_s);

        desk.WriteFile(panel.File, panel.FileOf({panel.Records[1]}));
        Read(panel);
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList{panel.Names[1]});
    }

    void AFileThatIsNotThereIsToldByTheLoader_data() { AddPanels(); }
    void AFileThatIsNotThereIsToldByTheLoader()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        desk.RemoveFile(panel.File);
        Show(panel.Window);
        Click(panel.Window, panel.Read);
        QCOMPARE(desk.TakeMessage(), panel.FileError(u"Error 53: File not found"_s, u"Input"_s));
        QCOMPARE(desk.TakeMessage(), panel.FileError(u"Error 52: Bad file name or number"_s, u"Input"_s));
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList());
        QVERIFY(!QFile::exists(desk.Path(panel.File)));
        QVERIFY(IsEnabled(panel.Window, panel.KeepsOne ? u"cmdAddPayPeriod"_s : panel.Add));
    }

    void AddingStartsAnEmptyEntry_data() { AddPanels(); }
    void AddingStartsAnEmptyEntry()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 1);
        Click(panel.Window, panel.Add);
        QCOMPARE(Shown(panel), Nothing(panel));
        QCOMPARE(TextOf(panel.Window, panel.Commit), u"&New"_s);
        QCOMPARE(FocusOf(panel.Window), panel.Fields[0]);
        QCOMPARE(Enabled(panel.Window, panel.Fields), panel.Fields.join(u' '));
        QCOMPARE(IsEnabled(panel.Window, panel.Commit), panel.HasModes);
    }

    void ARowShowsItsRecord_data() { AddPanels(); }
    void ARowShowsItsRecord()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        for (const int row : {1, 0}) {
            ClickRow(panel.Window, panel.List, row);
            QCOMPARE(Shown(panel), Joined(panel.Texts[row]));
            QCOMPARE(TextOf(panel.Window, panel.Commit), panel.HasModes ? u"&Change"_s : u"&New"_s);
            QCOMPARE(FocusOf(panel.Window), panel.Fields[0]);
            QCOMPARE(SelectedText(panel.Window, panel.Fields[0]), panel.Texts[row][0]);
            QCOMPARE(SelectedRow(panel.Window, panel.List), row);
            QVERIFY(IsEnabled(panel.Window, panel.Delete));
            QCOMPARE(Enabled(panel.Window, panel.Fields), panel.Fields.join(u' '));
            QCOMPARE(IsEnabled(panel.Window, panel.Commit), panel.HasModes);
        }
    }

    void AClickOnTheSelectedRowShowsItAgain_data() { AddPanels(); }
    void AClickOnTheSelectedRowShowsItAgain()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        Type(panel.Window, panel.Name(), u"Something else"_s);
        ClickRow(panel.Window, panel.List, 0);
        QCOMPARE(Shown(panel), Joined(panel.Texts[0]));
    }

    void TheKeyboardReachesARow_data() { AddPanels(); }
    void TheKeyboardReachesARow()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        auto &list = Find<ListBox>(panel.Window, panel.List);
        TheWindows.Loaded(panel.Window)->FocusOn(&list);
        QTest::keyClick(&list, Qt::Key_Home);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(Shown(panel), Nothing(panel)); // the arrows only move the mark
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(Shown(panel), Joined(panel.Texts[1]));
    }

    void ANewEntryIsSavedAndReadBack_data() { AddPanels(); }
    void ANewEntryIsSavedAndReadBack()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        AddEntry(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf(panel.Records + QList<QByteArray>{panel.EntryRecord}));
        QCOMPARE(RowsOf(panel.Window, panel.List),
                 panel.Names + QStringList{panel.EntryTexts[panel.Fields.indexOf(panel.Name())]});
        QCOMPARE(SelectedRow(panel.Window, panel.List), -1);
        QCOMPARE(Shown(panel), Joined(panel.EntryTexts)); // the panel keeps its text, in the normal form
        QCOMPARE(TextOf(panel.Window, panel.Commit), u"&New"_s);
    }

    void TheRecordKeepsFourDecimalsWhereThePanelShowsTwo_data() { AddPanels(); }
    void TheRecordKeepsFourDecimalsWhereThePanelShowsTwo()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        AddEntry(panel, panel.Entry);
        Type(panel.Window, panel.Amount, u"1.23456"_s);
        Click(panel.Window, panel.Commit);
        QCOMPARE(TextOf(panel.Window, panel.Amount), u"$1.23"_s);
        QCOMPARE(desk.ReadFile(panel.File), panel.ThreeRecords("1.2346"));
        ClickRow(panel.Window, panel.List, 2);
        QCOMPARE(TextOf(panel.Window, panel.Amount), u"$1.23"_s);
        if (!panel.HasModes)
            return;
        Click(panel.Window, panel.Commit); // takes what the panel shows
        QCOMPARE(desk.ReadFile(panel.File), panel.ThreeRecords("1.23"));
    }

    void ALongNameIsSeenFromItsBeginning_data() { AddPanels(); }
    void ALongNameIsSeenFromItsBeginning()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        AddEntry(panel, panel.Entry);
        const auto &name = Find<QLineEdit>(panel.Window, panel.Name());
        Type(panel.Window, panel.Name(), u"A very long name "_s.repeated(8) + u"with an end"_s);
        QVERIFY(name.cursorPosition() > 100); // while it is typed, its end is seen
        Click(panel.Window, panel.Commit);
        QCOMPARE(name.cursorPosition(), 0);
        auto &list = Find<ListBox>(panel.Window, panel.List);
        const QPoint beginning =
            list.visualItemRect(list.item(2)).topLeft() + QPoint(5, 5); // its middle is out of sight
        for (int time = 0; time < 2; ++time) {                          // the panel shows that text already
            QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, beginning);
            Settle();
            QCOMPARE(SelectedRow(panel.Window, panel.List), 2);
            QCOMPARE(name.cursorPosition(), 0);
            QCOMPARE(SelectedText(panel.Window, panel.Fields[0]), TextOf(panel.Window, panel.Fields[0]));
        }
        QCOMPARE(desk.TakeFiles(), QStringList{panel.File});
    }

    void AChangeIsSavedAndReadBack_data() { AddPanels(Which::WithModes); }
    void AChangeIsSavedAndReadBack()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 1);
        Enter(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf({panel.Records[0], panel.EntryRecord}));
        QCOMPARE(RowsOf(panel.Window, panel.List), (QStringList{panel.Names[0], panel.EntryTexts.last()}));
        QCOMPARE(SelectedRow(panel.Window, panel.List), -1);
        QCOMPARE(Shown(panel), Joined(panel.EntryTexts));
        QCOMPARE(TextOf(panel.Window, panel.Commit), u"&Change"_s);
        QVERIFY(IsEnabled(panel.Window, panel.Commit));
    }

    void ASecondChangeWithoutARowIsAnUnknownErrorAndChangesNothing_data() { AddPanels(Which::WithModes); }
    void ASecondChangeWithoutARowIsAnUnknownErrorAndChangesNothing()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        Click(panel.Window, panel.Commit);
        Enter(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.TakeMessage(), panel.UnknownError());
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        QCOMPARE(RowsOf(panel.Window, panel.List), panel.Names);
        QCOMPARE(Shown(panel), Joined(panel.EntryTexts)); // what was typed is put in its normal form all the same
        ClickRow(panel.Window, panel.List, 1);            // a row must be selected again
        Enter(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf({panel.Records[0], panel.EntryRecord}));
    }

    void AnyOtherCaptionCommitsNothing_data() { AddPanels(Which::WithModes); }
    void AnyOtherCaptionCommitsNothing()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        Enter(panel, panel.Entry);
        Find<QAbstractButton>(panel.Window, panel.Commit).setText(u"Change"_s); // without its access key it is no mode
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        QCOMPARE(SelectedRow(panel.Window, panel.List), 0); // the list was not even filled again
        QCOMPARE(Shown(panel), Joined(panel.EntryTexts));
        Click(panel.Window, panel.Read); // and nothing is left for the next save
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
    }

    void AnEntryIsRefused_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("entry");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        const auto add = [](const char *name, int index, const QStringList &entry, const QString &text, int focus) {
            QTest::newRow(name) << index << entry << text << Panels[index].Fields[focus];
        };
        const QString day = u"Please enter a number between 1 and 28 in the Creditor Due Date field"_s;
        const QString amount = u"Please enter a numerical dollar amount in the %1 Amount field"_s;
        const QString creditor = u"Please enter a creditor name or description in the Creditor field"_s;
        add("creditor, a day of letters", 0, {u"abc"_s, u"40"_s, u"Rent"_s}, day, 0);
        add("creditor, no day", 0, {{}, u"40"_s, u"Rent"_s}, day, 0);
        add("creditor, day 29", 0, {u"29"_s, u"40"_s, u"Rent"_s}, day, 0);
        add("creditor, day 0", 0, {u"0"_s, u"40"_s, u"Rent"_s}, day, 0);
        add("creditor, day 28 and a bit", 0, {u"28.2"_s, u"40"_s, u"Rent"_s}, day, 0);
        add("creditor, the day comes first", 0, {u"x"_s, u"x"_s, {}}, day, 0);
        add("creditor, an amount of letters", 0, {u"5"_s, u"forty"_s, u"Rent"_s}, amount.arg(u"Creditor"), 1);
        add("creditor, the amount comes before the name", 0, {u"5"_s, {}, {}}, amount.arg(u"Creditor"), 1);
        // The caret goes to the amount although the name is missing.
        add("creditor, no name", 0, {u"5"_s, u"40"_s, {}}, creditor, 1);
        const QString regular = u"Please enter a regular item description in the Regular Item field"_s;
        add("regular, an amount of letters", 1, {u"x"_s, u"Bus"_s}, amount.arg(u"Regular"), 0);
        add("regular, the amount comes first", 1, {{}, {}}, amount.arg(u"Regular"), 0);
        add("regular, no description", 1, {u"5"_s, {}}, regular, 1);
        const QString extra = u"Please enter an extra item description in the Extra Item field"_s;
        add("extra, an amount of letters", 2, {u"x"_s, u"Gift"_s}, amount.arg(u"Extra Item"), 0);
        add("extra, the amount comes first", 2, {{}, {}}, amount.arg(u"Extra Item"), 0);
        add("extra, no name", 2, {u"5"_s, {}}, extra, 1);
        const QString project = u"Please enter a project description in the Project field"_s;
        const QString date = u"January 1, 2004"_s;
        add("project, an amount of letters", 3, {u"Boat"_s, u"sixty"_s, date}, amount.arg(u"Project"), 1);
        add("project, the amount comes first", 3, {{}, u"sixty"_s, date}, amount.arg(u"Project"), 1);
        add("project, no description", 3, {{}, u"60"_s, date}, project, 0);
    }
    void AnEntryIsRefused()
    {
        const Panel &panel = ThePanel();
        QFETCH(QStringList, entry);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        CommitmentsDesk desk;
        Open(desk, panel);
        AddEntry(panel, panel.Entry);
        Enter(panel, entry);
        if (!panel.HasModes) // the button of the projects is grey where a text is missing; the refusal stands behind it
            Find(panel.Window, panel.Commit).setEnabled(true);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.TakeMessage(), (Message{text, panel.Title, Icon::Stop, Buttons::OkHelp, panel.HelpContext}));
        QCOMPARE(FocusOf(panel.Window), focus);
        QCOMPARE(SelectedText(panel.Window, focus), TextOf(panel.Window, focus));
        QCOMPARE(Shown(panel), Joined(entry)); // it stays as it was typed
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        QCOMPARE(RowsOf(panel.Window, panel.List), panel.Names);
        QVERIFY(IsEnabled(panel.Window, panel.Commit));
    }

    void AnAmountThatIsTooLargeIsAnUnknownErrorAndCanBePutRight_data() { AddPanels(); }
    void AnAmountThatIsTooLargeIsAnUnknownErrorAndCanBePutRight()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        AddEntry(panel, panel.Entry);
        Type(panel.Window, panel.Amount, u"922337203685478"_s); // one dollar more than an amount can hold
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.TakeMessage(), panel.UnknownError());
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        Enter(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf(panel.Records + QList<QByteArray>{panel.EntryRecord}));
    }

    void ANegativeCountTakesNoEntryHoweverOftenItIsTried_data() { AddPanels(); }
    void ANegativeCountTakesNoEntryHoweverOftenItIsTried()
    {
        const Panel &panel = ThePanel();
        if (!panel.Before.isEmpty())
            QSKIP("its count is a pay period's");
        CommitmentsDesk desk;
        Open(desk, panel);
        QByteArray damaged = panel.TwoRecords();
        damaged.replace(0, 1, "-1");
        desk.WriteFile(panel.File, damaged);
        Click(panel.Window, panel.Read);
        QVERIFY(desk.TakeMessage().Text.startsWith(u"Error 9"_s));
        AddEntry(panel, panel.Entry);
        for (int i = 0; i < 2; ++i) {
            Click(panel.Window, panel.Commit);
            if (desk.Messages.size() > 1) // what the entry before has left is dropped, which reads the file again
                QVERIFY(desk.TakeMessage().Text.startsWith(u"Error 9"_s));
            QCOMPARE(desk.TakeMessage(), panel.UnknownError());
            QCOMPARE(desk.ReadFile(panel.File), damaged);
        }
    }

    void DeletingTakesTheRowOutAndClosesThePanel_data() { AddPanels(); }
    void DeletingTakesTheRowOutAndClosesThePanel()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        Click(panel.Window, panel.Delete);
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList{panel.Names[1]});
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf({panel.Records[1]}));
        QCOMPARE(Shown(panel), Nothing(panel));
        QCOMPARE(Allowed(panel), panel.Read + u' ' + panel.Add + u" cmdQuit"_s);
    }

    void AfterADeleteTheListHasTheFocusAndEnterDoesNothing_data() { AddPanels(); }
    void AfterADeleteTheListHasTheFocusAndEnterDoesNothing()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        TheWindows.Loaded(panel.Window)->FocusOn(&Find(panel.Window, panel.Delete));
        PressEnter(panel.Window, panel.Delete);
        QCOMPARE(desk.ReadFile(panel.File), panel.FileOf({panel.Records[1]}));
        QCOMPARE(FocusOf(panel.Window), panel.List);
        PressEnter(panel.Window, FocusOf(panel.Window));
        QVERIFY(IsShown(panel.Window));
        QCOMPARE(SelectedRow(panel.Window, panel.List), -1);
        QCOMPARE(Shown(panel), Nothing(panel));
    }

    void DeletingTheOnlyOneLeavesAnEmptyFile_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("selected");
        for (int i = 0; i < Panels.size(); ++i)
            if (!Panels[i].KeepsOne) {
                QTest::addRow("%s", qPrintable(Panels[i].Window)) << i << true;
                QTest::addRow("%s, without a row", qPrintable(Panels[i].Window)) << i << false;
            }
    }
    void DeletingTheOnlyOneLeavesAnEmptyFile()
    {
        const Panel &panel = ThePanel();
        QFETCH(bool, selected);
        CommitmentsDesk desk;
        desk.WriteFile(panel.File, panel.FileOf({panel.Records[0]}));
        Show(panel.Window);
        Read(panel);
        ClickRow(panel.Window, panel.List, 0);
        if (!selected)
            Click(panel.Window, panel.Read); // the delete button outlasts the selection
        QCOMPARE(SelectedRow(panel.Window, panel.List), selected ? 0 : -1);
        Click(panel.Window, panel.Delete);
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList());
        QCOMPARE(desk.ReadFile(panel.File), QByteArray("0\r\n"));
        QCOMPARE(Shown(panel), Nothing(panel));
    }

    void OfSeveralNoneIsDeletedWithoutARow_data() { AddPanels(Which::WithModes); }
    void OfSeveralNoneIsDeletedWithoutARow()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        Click(panel.Window, panel.Commit);
        QCOMPARE(SelectedRow(panel.Window, panel.List), -1);
        Click(panel.Window, panel.Delete);
        QCOMPARE(desk.TakeMessage(), panel.UnknownError());
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        QCOMPARE(RowsOf(panel.Window, panel.List), panel.Names);
        QCOMPARE(Shown(panel), Joined(panel.Texts[0])); // the panel is not closed either
    }

    void AFileThatCannotBeWrittenIsToldAndReadBack_data() { AddPanels(); }
    void AFileThatCannotBeWrittenIsToldAndReadBack()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        QVERIFY(QFile::setPermissions(desk.Path(panel.File), QFile::ReadOwner));
        const auto isAsBefore = [&] {
            return desk.TakeMessage() == panel.FileError(u"Error 75: Path/File access error"_s, u"Save"_s) &&
                   desk.ReadFile(panel.File) == panel.TwoRecords() && RowsOf(panel.Window, panel.List) == panel.Names;
        };
        AddEntry(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QVERIFY(isAsBefore());
        ClickRow(panel.Window, panel.List, 0);
        Click(panel.Window, panel.Delete);
        QVERIFY(isAsBefore());
        if (!panel.HasModes)
            return;
        ClickRow(panel.Window, panel.List, 0);
        Enter(panel, panel.Entry);
        Click(panel.Window, panel.Commit);
        QVERIFY(isAsBefore());
    }

    void AFileThatIsGoneIsToldAndNotMade_data() { AddPanels(); }
    void AFileThatIsGoneIsToldAndNotMade()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        desk.RemoveFile(panel.File);
        Click(panel.Window, panel.Delete);
        QCOMPARE(desk.TakeMessage(), panel.FileError(u"Error 53: File not found"_s, u"Save"_s));
        QCOMPARE(desk.TakeMessage(), panel.FileError(u"Error 53: File not found"_s, u"Input"_s));
        QVERIFY(!desk.Messages.isEmpty()); // the count stays, and each value of the one record that is left fails
        while (!desk.Messages.isEmpty())
            QCOMPARE(desk.TakeMessage(), panel.FileError(u"Error 52: Bad file name or number"_s, u"Input"_s));
        QVERIFY(!QFile::exists(desk.Path(panel.File)));
    }

    void EnterGoesRoundTheFieldsAndPressesNothing_data() { AddPanels(Which::WithModes); }
    void EnterGoesRoundTheFieldsAndPressesNothing()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        for (qsizetype i = 1; i <= panel.Fields.size(); ++i) {
            const QString &next = panel.Fields[i % panel.Fields.size()];
            PressEnter(panel.Window, FocusOf(panel.Window));
            QCOMPARE(FocusOf(panel.Window), next);
            QCOMPARE(SelectedText(panel.Window, next), TextOf(panel.Window, next));
        }
        QCOMPARE(desk.ReadFile(panel.File), panel.TwoRecords());
        QCOMPARE(SelectedRow(panel.Window, panel.List), 0);
    }

    void QuittingUnloads_data() { AddPanels(); }
    void QuittingUnloads()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        Click(panel.Window, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(panel.Window));
        Show(panel.Window); // afresh
        QCOMPARE(Enabled(panel.Window, panel.Controls()), panel.Read + u" cmdQuit"_s);
        QCOMPARE(RowsOf(panel.Window, panel.List), QStringList());
    }

    void EscClosesTheWindow_data() { AddPanels(); }
    void EscClosesTheWindow()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        ClickRow(panel.Window, panel.List, 0);
        QTest::keyClick(&Find(panel.Window, FocusOf(panel.Window)), Qt::Key_Escape);
        Settle();
        QVERIFY(!TheWindows.Loaded(panel.Window));
    }

    void F1AsksForThePageOfTheWindow_data() { AddPanels(); }
    void F1AsksForThePageOfTheWindow()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        Open(desk, panel);
        QTest::keyClick(&Find(panel.Window, panel.List), Qt::Key_F1);
        ClickRow(panel.Window, panel.List, 0);
        QTest::keyClick(&Find(panel.Window, FocusOf(panel.Window)), Qt::Key_F1); // and the same in a field
        const HelpQuestion page{QString(), panel.HelpContext, panel.Window};
        QCOMPARE(std::exchange(desk.HelpQuestions, {}), (QList<HelpQuestion>{page, page}));
    }

    void TheTutorRestsWhileTheWindowIsLoaded_data() { AddPanels(); }
    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        const Panel &panel = ThePanel();
        CommitmentsDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(panel.Menu);
        QVERIFY(IsShown(panel.Window));
        QVERIFY(!timer.isActive());
        Click(panel.Window, u"cmdQuit"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }
};

REGISTER_TEST(gui_listpanels)
#include "gui_listpanels.moc"
