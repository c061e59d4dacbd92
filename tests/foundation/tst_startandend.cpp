// The start: what is read in which order and what each missing or damaged file leads to. The end: the settings are
// saved, the calculator is closed, the process ends.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Title = u"Initialize Variables"_s;
const QString Settings = u"environm.ini"_s;
const QString Tutor = u"help\\Instruction.txt"_s;
const QString Footer = u"\n\nFor more information press F1\n"
                       "Use the browse (<< and >>) buttons at the top to move \n"
                       "forward and backward through the instructions"_s;

Message Told(const char *text, const QString &title = Title)
{
    return {QString::fromLatin1(text), title, Icon::Stop, Buttons::Ok, 0};
}

/// The start was given up at the settings: nothing behind them was done.
void ExpectAnAbandonedStart(FakeDesk &desk)
{
    QVERIFY(State.InitializingVariables);
    QCOMPARE(State.CurrentPayPeriod, QString());
    QCOMPARE(State.MonthDays[0], qint16(0));
    QCOMPARE(State.PrintFontName, QString());
    QCOMPARE(State.PrintFontSize, 0.0F);
    QCOMPARE(State.TutorInstructions(1), QString());
    QCOMPARE(State.NumberOfCreditors, qint16(0));
    QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
}

/// A start that gets as far as the calculator.
void Start(FakeDesk &desk)
{
    InitializeVariables();
    QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
}

} // namespace

class TestStartAndEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ a sound household

    void PathsComeFromTheProgramsFolder()
    {
        FakeDesk desk;
        desk.LayHousehold();
        State.ApplicationPath = State.StoresDirectory = State.HelpFile = u"elsewhere"_s;
        Start(desk);
        QCOMPARE(State.ApplicationPath, desk.Folder());
        QCOMPARE(State.StoresDirectory, desk.Folder() + u"\\stores\\"_s);
        QCOMPARE(State.HelpFile, desk.Folder() + u"\\help\\budget help.hlp"_s);
    }

    void TheNineSettingsAreReadInOrder()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.WriteFile(u"stores\\Saturday.lst"_s, "0\r\n");
        desk.WriteFile(Settings, "52\r\n1061.5385\r\n30\r\n3\r\n18\r\n-1\r\n0.0725\r\n\"Saturday.lst\"\r\n0.8437\r\n");
        Start(desk);
        QCOMPARE(State.ForecastPeriods, qint16(52));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(10615385));
        QCOMPARE(State.PayFrequency, qint16(30));
        QCOMPARE(State.FirstPayDate, qint16(3));
        QCOMPARE(State.SecondPayDate, qint16(18));
        QCOMPARE(State.MonthEndPay, qint16(-1));
        QCOMPARE(State.SalesTax, 0.0725F);
        QCOMPARE(State.CurrentStoreFile, u"Saturday.lst"_s);
        QCOMPARE(State.AverageNetPercentage, 0.8437F);
    }

    void NothingSuppliesADefaultForASetting()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.WriteFile(Settings, "0\r\nnone\r\n99\r\n-5\r\n77\r\n4\r\nx\r\n\"untitled.lst\"\r\n2\r\n");
        Start(desk);
        QCOMPARE(State.ForecastPeriods, qint16(0));
        QCOMPARE(State.PaycheckAmount, Currency()); // read directly: what is no number is 0, without a message
        QCOMPARE(State.PayFrequency, qint16(99));
        QCOMPARE(State.FirstPayDate, qint16(-5));
        QCOMPARE(State.SecondPayDate, qint16(77));
        QCOMPARE(State.MonthEndPay, qint16(4));
        QCOMPARE(State.SalesTax, 0.0F);
        QCOMPARE(State.AverageNetPercentage, 2.0F);
        QVERIFY(!State.InitializingVariables);
    }

    void ThePayPeriodIsTodayAtEveryStart()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.Now = QDateTime(QDate(2004, 2, 9), QTime(23, 59));
        State.CurrentPayPeriod = u"1/1/1999"_s; // what the user had set in the last run
        Start(desk);
        QCOMPARE(State.CurrentPayPeriod, u"02-09-2004"_s);
        QVERIFY(!State.CurrentPayPeriodConfirmed);
    }

    void TheMonthsHaveTheirDaysAndFebruary28()
    {
        FakeDesk desk;
        desk.LayHousehold();
        Start(desk);
        QCOMPARE(State.MonthDays, (std::array<qint16, 12>{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}));
    }

    void ThePrintSettingsGoBackToTheirDefaults()
    {
        FakeDesk desk;
        desk.LayHousehold();
        State.PrintFontName = u"Serif"_s;
        State.PrintFontSize = 12;
        State.PrintFontBold = State.PrintFontItalic = State.PrintFontUnderline = State.PrintFontStrikethru = true;
        State.PrintFontColor = 0xFF;
        Start(desk);
        QCOMPARE(State.PrintFontName, u"Courier"_s);
        QCOMPARE(State.PrintFontSize, 8.0F);
        QVERIFY(!State.PrintFontBold);
        QVERIFY(!State.PrintFontItalic);
        QVERIFY(!State.PrintFontUnderline);
        QVERIFY(!State.PrintFontStrikethru);
        QCOMPARE(State.PrintFontColor, 0);
        ApplyPrintSettings();
        QCOMPARE(ThePrinter.Font, (PrintFont{u"Courier"_s, 8, false, false, false, false, 0}));
    }

    void EveryPrintSettingReachesThePrinter()
    {
        FakeDesk desk;
        State.PrintFontName = u"Serif"_s;
        State.PrintFontSize = 11.5F;
        State.PrintFontBold = State.PrintFontUnderline = true;
        State.PrintFontColor = 0x0000FF;
        ApplyPrintSettings();
        QCOMPARE(ThePrinter.Font, (PrintFont{u"Serif"_s, 11.5F, true, false, true, false, 0x0000FF}));
        State.PrintFontBold = State.PrintFontUnderline = false;
        State.PrintFontItalic = State.PrintFontStrikethru = true;
        ApplyPrintSettings();
        QCOMPARE(ThePrinter.Font, (PrintFont{u"Serif"_s, 11.5F, false, true, false, true, 0x0000FF}));
    }

    void AllSixListsAreLoaded()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n650\r\n");
        desk.WriteFile(u"regulars.txt"_s, "1\r\n\"Food\"\r\n100\r\n");
        desk.WriteFile(u"extra.txt"_s, "1\r\n\"1/15/2004\"\r\n0\r\n");
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Roof\"\r\n1000\r\n0\r\n");
        desk.WriteFile(u"mastshop.txt"_s, "1\r\n\"Milk\"\r\n\"\"\r\n2\r\n\"\"\r\n#TRUE#\r\n");
        desk.WriteFile(u"stores\\untitled.lst"_s, "1\r\n\"Eggs\"\r\n\"\"\r\n2\r\n\"\"\r\n1\r\n#TRUE#\r\n0\r\n0\r\n");
        Start(desk);
        QCOMPARE(State.Creditors(1).CreditorName, u"Rent"_s);
        QCOMPARE(State.Regulars(1).RegularItem, u"Food"_s);
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"01-15-2004"_s);
        QCOMPARE(State.ProjectNames(1), u"Roof"_s);
        QCOMPARE(State.MasterShoppingList(1).Item, u"Milk"_s);
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Eggs"_s);
    }

    void TheCalculatorIsStartedOnceAndLast()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.WriteFile(u"stores\\untitled.lst"_s, "1\r\n\"Eggs\"\r\n\"\"\r\n2\r\n\"\"\r\n1\r\n#TRUE#\r\n0\r\n0\r\n");
        bool initializing = false;
        qint16 items = 0;
        TheDesk.StartCalculator = [&] {
            desk.CalculatorCalls += u"start"_s;
            initializing = State.InitializingVariables;
            items = State.NumberOfCurrentItems;
        };
        Start(desk);
        QVERIFY(initializing);      // the flag falls only behind it
        QCOMPARE(items, qint16(1)); // and the last list is there before it
        QVERIFY(!State.InitializingVariables);
        QVERIFY(!State.MathCalculatorMissing);
    }

    // ------------------------------------------------------------ lists that fail

    void TheListsAreLoadedInOrderAndEachTellsItsOwnErrors()
    {
        FakeDesk desk;
        desk.LayHousehold();
        for (const char *name :
             {"creditor.txt", "regulars.txt", "extra.txt", "projects.txt", "mastshop.txt", "stores\\untitled.lst"})
            desk.RemoveFile(QLatin1String(name));
        Start(desk);
        for (const char *title : {"Input Creditors", "Input Regulars", "Input Pay Periods", "Input Projects",
                                  "Input Master Shopping List", "Input Current Shopping List"}) {
            QCOMPARE(desk.TakeMessage(), Told("Error 53: File not found", QString::fromLatin1(title)));
            QCOMPARE(desk.TakeMessage(), Told("Error 52: Bad file name or number", QString::fromLatin1(title)));
        }
        // None of it is the start's matter: the calculator's entry stays and the start goes on.
        QVERIFY(!State.MathCalculatorMissing);
        QVERIFY(!State.InitializingVariables);
    }

    // ------------------------------------------------------------ the settings file

    void AMissingSettingsFileGreysTheEntryAndAbandonsTheStart()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.RemoveFile(Settings);
        InitializeVariables();
        QCOMPARE(desk.TakeMessage(), Told("Error 52: Bad file name or number"));
        QVERIFY(State.MathCalculatorMissing);
        QCOMPARE(State.ForecastPeriods, qint16(0));
        QCOMPARE(State.CurrentStoreFile, QString());
        ExpectAnAbandonedStart(desk);
    }

    void AShortSettingsFileKeepsWhatWasRead_data()
    {
        QTest::addColumn<int>("values");
        for (int values = 0; values < 9; ++values)
            QTest::addRow("%d values", values) << values;
    }
    void AShortSettingsFileKeepsWhatWasRead()
    {
        FakeDesk desk;
        QFETCH(int, values);
        desk.LayHousehold();
        const QByteArrayList lines{"26", "1000", "14", "1", "15", "-1", "0.06", "\"untitled.lst\"", "0.9"};
        desk.WriteFile(Settings, lines.mid(0, values).join("\r\n") + "\r\n");
        InitializeVariables();
        QCOMPARE(desk.TakeMessage(), Told("Error 62: Input past end of file"));
        QVERIFY(!State.MathCalculatorMissing);
        QCOMPARE(State.ForecastPeriods, qint16(values > 0 ? 26 : 0));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(values > 1 ? 10000000 : 0));
        QCOMPARE(State.PayFrequency, qint16(values > 2 ? 14 : 0));
        QCOMPARE(State.FirstPayDate, qint16(values > 3 ? 1 : 0));
        QCOMPARE(State.SecondPayDate, qint16(values > 4 ? 15 : 0));
        QCOMPARE(State.MonthEndPay, qint16(values > 5 ? -1 : 0));
        QCOMPARE(State.SalesTax, values > 6 ? 0.06F : 0.0F);
        QCOMPARE(State.CurrentStoreFile, values > 7 ? u"untitled.lst"_s : QString());
        QCOMPARE(State.AverageNetPercentage, 0.0F);
        ExpectAnAbandonedStart(desk);
    }

    void ADamagedSettingIsToldAndAbandonsTheStart_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("periods beyond 16 bits")
            << QByteArray("40000\n1000\n14\n1\n15\n0\n0.06\n\"untitled.lst\"\n0.9\n");
        QTest::newRow("a paycheck beyond the range")
            << QByteArray("26\n1e20\n14\n1\n15\n0\n0.06\n\"untitled.lst\"\n0.9\n");
        QTest::newRow("a tax beyond single precision")
            << QByteArray("26\n1\n14\n1\n15\n0\n1e99\n\"untitled.lst\"\n0.9\n");
    }
    void ADamagedSettingIsToldAndAbandonsTheStart()
    {
        FakeDesk desk;
        QFETCH(QByteArray, file);
        desk.LayHousehold();
        desk.WriteFile(Settings, file);
        InitializeVariables();
        QCOMPARE(desk.TakeMessage(), Told("Error 6: Overflow"));
        QCOMPARE(State.CurrentStoreFile, QString()); // what follows is not read
        ExpectAnAbandonedStart(desk);
    }

    // ------------------------------------------------------------ the calculator

    void WithoutACalculatorTheEntryIsGreyAndNothingIsSaid()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.StartCalculatorError = 53;
        Start(desk);
        QVERIFY(State.MathCalculatorMissing);
        QVERIFY(!State.InitializingVariables);
    }

    void AnotherErrorOfTheCalculatorIsTold_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("text");
        QTest::newRow("5") << 5 << u"Error 5: Invalid procedure call or argument"_s;
        QTest::newRow("70") << 70 << u"Error 70: Permission denied"_s;
    }
    void AnotherErrorOfTheCalculatorIsTold()
    {
        FakeDesk desk;
        QFETCH(int, error);
        QFETCH(QString, text);
        desk.LayHousehold();
        desk.StartCalculatorError = error;
        Start(desk);
        QCOMPARE(desk.TakeMessage(), (Message{text, Title, Icon::Stop, Buttons::Ok, 0}));
        QVERIFY(!State.MathCalculatorMissing);
        QVERIFY(State.InitializingVariables); // the routine was left before its last step
        QCOMPARE(State.CurrentPayPeriod, u"01-05-2004"_s);
    }

    // ------------------------------------------------------------ the tutor's pages

    void AMissingTutorFileGreysTheEntryAndTheStartGoesOn()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.RemoveFile(Tutor);
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n650\r\n");
        Start(desk);
        QVERIFY(State.MathCalculatorMissing); // meant for the calculator, but the handler is one for all
        QVERIFY(!State.InitializingVariables);
        QCOMPARE(State.NumberOfCreditors, qint16(1));
    }

    void AMissingHelpFolderIsAsAMissingTutorFile()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.RemoveFile(Tutor);
        QVERIFY(QDir(desk.Folder()).rmdir(u"help"_s));
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n650\r\n");
        Start(desk);
        QVERIFY(State.MathCalculatorMissing);
        QVERIFY(!State.InitializingVariables);
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.TutorInstructions(1), QString());
    }

    void EachPageEndsWithTheFooter()
    {
        FakeDesk desk;
        desk.WriteFile(Tutor, "; the first page\r\nWelcome.\r\n\r\nRead on.\r\n;\r\nSecond.\r\n;\r\n");
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions.Size(), 26);
        QCOMPARE(State.TutorInstructions(1), u"\nWelcome.\n\nRead on."_s + Footer);
        QCOMPARE(State.TutorInstructions(2), u"\nSecond."_s + Footer);
        QCOMPARE(State.TutorInstructions(3), QString());
    }

    void TheLastPageHasAFooterOnlyBehindAnotherMark()
    {
        FakeDesk desk;
        desk.WriteFile(Tutor, ";\nFirst.\n;\nSecond.");
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions(1), u"\nFirst."_s + Footer);
        QCOMPARE(State.TutorInstructions(2), u"\nSecond."_s);
    }

    void OnlyAMarkAtTheStartOfALineParts()
    {
        FakeDesk desk;
        desk.WriteFile(Tutor, ";\n ; no mark\nneither; this\n;\n");
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions(1), u"\n ; no mark\nneither; this"_s + Footer);
    }

    void AllTwentySixPagesAreRead()
    {
        FakeDesk desk;
        desk.LayHousehold();
        Start(desk);
        for (int page = 1; page <= 26; ++page)
            QCOMPARE(State.TutorInstructions(page), u"\nPage %1"_s.arg(page) + Footer);
    }

    void AnEmptyTutorFileIsNoError()
    {
        FakeDesk desk;
        desk.WriteFile(Tutor, "");
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions.Size(), 26);
        QCOMPARE(State.TutorInstructions(1), QString());
    }

    void ATutorFileThatFails_data()
    {
        QTest::addColumn<QByteArray>("file");
        QByteArray marks;
        for (int mark = 1; mark <= 27; ++mark)
            marks += ";\r\n";
        QTest::newRow("text ahead of the first mark") << QByteArray("Text\r\n;\r\nPage 1\r\n;\r\n");
        QTest::newRow("an empty line ahead of the first mark") << QByteArray("\r\n;\r\nPage 1\r\n;\r\n");
        QTest::newRow("text behind the 27th mark") << marks + "Text\r\n";
        QTest::newRow("a 28th mark") << marks + ";\r\n";
    }
    void ATutorFileThatFails()
    {
        FakeDesk desk;
        QFETCH(QByteArray, file);
        desk.LayHousehold();
        desk.WriteFile(Tutor, file);
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n650\r\n");
        QCOMPARE(ErrorOf(LoadTutorInstructions), 9); // it has no handler of its own
        InitializeVariables();
        QCOMPARE(desk.TakeMessage(), Told("Error 9: Subscript out of range"));
        QVERIFY(State.InitializingVariables);
        QVERIFY(!State.MathCalculatorMissing);
        QCOMPARE(State.PrintFontName, u"Courier"_s);  // what came before it stands
        QCOMPARE(State.NumberOfCreditors, qint16(0)); // what comes behind it was not done
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
    }

    void TwentySevenMarksAreLawful()
    {
        FakeDesk desk;
        QByteArray marks;
        for (int mark = 1; mark <= 27; ++mark)
            marks += ";\r\n";
        desk.WriteFile(Tutor, marks);
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions(26), Footer);
    }

    // ------------------------------------------------------------ the way out

    void LeavingSavesClosesAndEnds()
    {
        FakeDesk desk;
        desk.LayHousehold();
        Start(desk);
        State.ForecastPeriods = 13;
        QByteArray settingsAtClosing;
        bool endedAtClosing = false;
        TheDesk.CloseCalculator = [&] {
            desk.CalculatorCalls += u"close"_s;
            settingsAtClosing = desk.ReadFile(Settings);
            endedAtClosing = desk.Ended;
        };
        LeaveProgram();
        QCOMPARE(settingsAtClosing,
                 QByteArray("13\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
        QVERIFY(!endedAtClosing);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QVERIFY(desk.TakeEnd());
    }

    void LeavingSavesNothingElse()
    {
        FakeDesk desk;
        desk.LayHousehold();
        Start(desk);
        State.NumberOfCreditors = 1;
        State.Creditors = {{u"Rent"_s, 1, Currency()}};
        LeaveProgram();
        QCOMPARE(desk.TakeFiles(), QStringList{Settings});
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QVERIFY(desk.TakeEnd());
    }

    void LeavingEndsAlsoWhenTheSettingsCannotBeSaved()
    {
        FakeDesk desk;
        LeaveProgram();
        QCOMPARE(desk.TakeMessage(), Told("Error 53: File not found", u"Save Environment Settings"_s));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QVERIFY(desk.TakeEnd());
    }

    void ErrorsOfTheClosingCalculatorDoNotMatter()
    {
        FakeDesk desk;
        desk.LayHousehold();
        TheDesk.CloseCalculator = [] { RaiseError(RuntimeError::InvalidProcedureCall); };
        LeaveProgram();
        QVERIFY(desk.TakeEnd());
        QCOMPARE(desk.TakeFiles(), QStringList{Settings});
    }
};

REGISTER_TEST(TestStartAndEnd)
#include "tst_startandend.moc"
