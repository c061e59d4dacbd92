// The tutor: its pages, its timer, the freezing, its place, and that it takes nobody from his work.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/Options.h"
#include "foundation/Tutor.h"
#include "guidance/TutorPages.h"
#include "platform/controls/Icons.h"
#include "platform/controls/Picture.h"

#include <QAction>
#include <QBuffer>
#include <QScreen>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Main = u"frmMain"_s;
const QString Window = u"frmTallymereTutor"_s;
const QString Footer = u"For more information press F1\n"
                       "Use the browse (<< and >>) buttons at the top to move \n"
                       "forward and backward through the instructions"_s;

QTimer &TheTutorTimer()
{
    return Find<QTimer>(Main, u"tmrAutoTutor"_s);
}

void Tick()
{
    QVERIFY(QMetaObject::invokeMethod(&TheTutorTimer(), "timeout"));
    Settle();
}

/// The timer's ten seconds pass, if it runs.
void LetItsTimePass()
{
    if (TheTutorTimer().isActive())
        Tick();
}

void WantPage(int page)
{
    Q_EMIT TheTutorRequests.PageWanted(page);
    Settle();
}

QString TopicPanel()
{
    return Find<QStackedWidget>(Window, u"stkTopics"_s).currentWidget()->objectName();
}

QString Instructions()
{
    return Find<QTextEdit>(Window, u"rtbInstructions"_s).toPlainText();
}

/// What the desk's household has on its pages.
QString TextOfPage(int page)
{
    return u"\nPage %1\n\n"_s.arg(page) + Footer;
}

/// The colour in the middle of the teacher's picture, by which tests tell pictures of one colour from the drawn ones.
QColor Teacher()
{
    const auto &picture = Find<QToolButton>(Window, u"imgTallymereTutor"_s);
    return picture.icon().pixmap(picture.iconSize()).toImage().pixelColor(5, 5);
}

void LayPicture(const RecordingDesk &desk, const QString &name, const QColor &colour, const char *format = "BMP")
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, format);
    desk.WriteFile(u"help\\"_s + name, bytes);
}

void LayPictures(const RecordingDesk &desk)
{
    LayPicture(desk, u"teacher.bmp"_s, Qt::red);
    LayPicture(desk, u"freeze.bmp"_s, Qt::blue);
}

/// Counts what the main window's timer is asked to show.
int PagesOf(const QList<QString> &commands)
{
    QObject context;
    int pages = 0;
    QObject::connect(&TheTutorRequests, &TutorRequests::PageWanted, &context, [&](int) { ++pages; });
    for (const QString &command : commands)
        Choose(command);
    return pages;
}

} // namespace

class gui_frmTallymereTutor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The user works on where he was

    void APageTakesNobodyFromHisWork()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(u"frmCreditors"_s);
        Click(u"frmCreditors"_s, u"cmdListCreditors"_s);
        Click(u"frmCreditors"_s, u"cmdAddCreditor"_s);
        Type(u"frmCreditors"_s, u"txtCreditor"_s, u"Rent"_s);
        QVERIFY(!IsShown(Window));
        WantPage(3);
        QVERIFY(IsShown(Window));
        QCOMPARE(ActiveWindow(), u"frmCreditors"_s);
        QCOMPARE(QApplication::activeWindow(), TheWindows.Loaded(u"frmCreditors"_s));
        QCOMPARE(FocusOf(u"frmCreditors"_s), u"txtCreditor"_s);
        QCOMPARE(TextOf(u"frmCreditors"_s, u"txtCreditor"_s), u"Rent"_s);
        WantPage(4); // nor does a page in the window that stands there already
        QCOMPARE(QApplication::activeWindow(), TheWindows.Loaded(u"frmCreditors"_s));
    }

    void AClickOnTheTeacherTakesNobodyEither()
    {
        GuiDesk desk;
        desk.StartProgram();
        Tick();
        TheWindows.Loaded(Window)->activateWindow();
        Settle();
        Click(Window, u"imgTallymereTutor"_s);
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(ActiveWindow(), Main);
        TheWindows.Loaded(Main)->activateWindow(); // back at work: no return to the main window, which would start it
        Settle();
        QVERIFY(!TheTutorTimer().isActive());
    }

    void ItsClosingByTheFrameLeavesTheUserWhereHeWas()
    {
        GuiDesk desk;
        desk.StartProgram();
        Tick();
        TheTutorTimer().stop(); // which an activation of the main window would start again
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(ActiveWindow(), Main);
        WantPage(7); // the next page loads it again
        QVERIFY(IsShown(Window));
        QCOMPARE(Instructions(), TextOfPage(7));
    }

    void APageBehindAModalWindowLeavesThatInFront()
    {
        GuiDesk desk;
        desk.StartProgram();
        QString active;
        QTimer::singleShot(0, qApp, [&] {
            WantPage(5);
            active = ActiveWindow();
            TheWindows.Unload(u"frmSetCurrentPayPeriod"_s);
        });
        TheWindows.ShowModal(u"frmSetCurrentPayPeriod"_s);
        QCOMPARE(active, u"frmSetCurrentPayPeriod"_s);
        QVERIFY(IsShown(Window));
        QCOMPARE(ActiveWindow(), Main);
        desk.TakeAll(); // the question for the pay period is a matter of its own
    }

    // The pages

    void EveryPageShowsItsTopicAndItsText_data()
    {
        QTest::addColumn<int>("page");
        for (int page = 1; page <= MostTutorPages; ++page)
            QTest::addRow("%d", page) << page;
    }
    void EveryPageShowsItsTopicAndItsText()
    {
        QFETCH(int, page);
        GuiDesk desk;
        desk.StartProgram();
        WantPage(page % MostTutorPages + 1); // another one before
        WantPage(page);
        QCOMPARE(TopicPanel(), TutorPage(page).Panel);
        QCOMPARE(Instructions(), TextOfPage(page));
        auto &panel = Find(Window, TopicPanel());
        QVERIFY(panel.isVisible());
        const auto *picture = panel.findChild<Picture *>();
        QVERIFY(picture && picture->isVisible());
        QCOMPARE(picture->Shown().name(), TutorPage(page).Icon);
        QVERIFY(!picture->Shown().isNull());
        QCOMPARE(panel.findChild<QLabel *>()->text(), TutorPage(page).Topic);
        QCOMPARE(picture->accessibleName(), TutorPage(page).Topic);
    }

    void ThePanelsAreBroughtToTheFrontInTheirOrder()
    {
        GuiDesk desk;
        desk.StartProgram();
        WantPage(1);
        const QObjectList order = TheWindows.Loaded(Window)->children();
        const auto place = [&](const QString &panel) { return order.indexOf(&Find(Window, panel)); };
        QVERIFY(place(u"pnlInstructions"_s) > place(u"stkTopics"_s));
        QVERIFY(place(u"pnlTallymereTutor"_s) > place(u"pnlInstructions"_s));
    }

    void APageWithoutTextIsAnEmptyBoxWithItsTopic()
    {
        GuiDesk desk;
        desk.WriteFile(u"help\\Instruction.txt"_s, ";\r\nOne\r\n;\r\n");
        desk.StartProgram();
        WantPage(1);
        WantPage(2);
        QCOMPARE(Instructions(), QString());
        QCOMPARE(TopicPanel(), u"pnlBudget"_s);
        QVERIFY(IsShown(Window));
    }

    void WithoutTheFileAllPagesAreEmpty()
    {
        GuiDesk desk;
        desk.RemoveFile(u"help\\Instruction.txt"_s);
        desk.StartProgram();
        WantPage(26);
        QCOMPARE(Instructions(), QString());
        QCOMPARE(TopicPanel(), u"pnlMasterShoppingList"_s);
    }

    void TheLastPageHasItsFooterOnlyBeforeASeparator()
    {
        GuiDesk desk;
        desk.WriteFile(u"help\\Instruction.txt"_s, ";\r\nOne\r\n;\r\nTwo\r\n");
        desk.StartProgram();
        WantPage(1);
        QCOMPARE(Instructions(), u"\nOne\n\n"_s + Footer);
        WantPage(2);
        QCOMPARE(Instructions(), u"\nTwo"_s);
    }

    void APageBeforeTheMainWindowIsShownAllTheSame()
    {
        GuiDesk desk;
        WantPage(12);
        QVERIFY(IsShown(Window));
        QCOMPARE(TopicPanel(), u"pnlOverhead"_s);
        QVERIFY(!TheWindows.Loaded(Main));
        // There is no timer to stop, and the click must not load the main window for it.
        TheWindows.Loaded(Window)->activateWindow();
        Settle();
        Click(Window, u"imgTallymereTutor"_s);
        Click(Window, u"imgTallymereTutor"_s);
        QVERIFY(!TheWindows.Loaded(Main));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
    }

    void ItsPagesCanBeReadByTheKeysAndNotWrittenIn()
    {
        GuiDesk desk;
        desk.StartProgram();
        WantPage(1);
        auto &text = Find<QTextEdit>(Window, u"rtbInstructions"_s);
        QVERIFY(text.isReadOnly());
        TheWindows.ShowAndActivate(Window);
        text.setFocus();
        QTest::keyClicks(&text, u"x"_s);
        QCOMPARE(Instructions(), TextOfPage(1));
        QTest::keyClick(&text, Qt::Key_Tab); // the way out of the text
        QCOMPARE(FocusOf(Window), u"imgTallymereTutor"_s);
        QTest::keyClick(&Find(Window, u"imgTallymereTutor"_s), Qt::Key_F1); // which its footer speaks of
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 0, Window}));
    }

    // The commands and the timer

    void ACommandShowsItsPageAndThenItsWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFileCreditors"_s);
        QVERIFY(IsShown(Window));
        QCOMPARE(TopicPanel(), u"pnlCreditors"_s);
        QCOMPARE(Instructions(), TextOfPage(3));
        QCOMPARE(ActiveWindow(), u"frmCreditors"_s);
        QVERIFY(!TheTutorTimer().isActive()); // the page stays while the user works
    }

    void WithTheOptionOffTheTutorStaysAway()
    {
        GuiDesk desk;
        desk.Options[ShowTutor.toLower()] = u"0"_s;
        desk.StartProgram();
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(PagesOf({u"mnuFileCreditors"_s}), 0);
        QVERIFY(!IsShown(Window));
        QCOMPARE(ActiveWindow(), u"frmCreditors"_s);
    }

    void TheTimerLeafsThroughThePages()
    {
        GuiDesk desk;
        desk.StartProgram();
        for (int tick = 1; tick <= 25; ++tick) {
            Tick();
            const int page = tick <= 24 ? tick : 1; // the steps of the shopping route never come up
            QCOMPARE(Instructions(), TextOfPage(page));
            QCOMPARE(TopicPanel(), TutorPage(page).Panel);
        }
        QCOMPARE(ActiveWindow(), Main);
    }

    void TurningTheTutorOffUnloadsItAndAPageStillComes()
    {
        GuiDesk desk;
        desk.StartProgram();
        Tick();
        Choose(u"mnuTallymereTutor"_s);
        QCOMPARE(desk.TakeMessage().Text,
                 u"Tallymere Tutor will not be displayed automatically. To get help from the Tutor again recheck this "
                 "option or click Help->How Do I...?"_s);
        QCOMPARE(desk.TakeOption(ShowTutor), u"0"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        WantPage(25); // of the shopping route, which asks whether or not the tutor is on
        QVERIFY(IsShown(Window));
        QCOMPARE(Instructions(), TextOfPage(25));
        Click(Main, u"cmdTutor"_s);
        QCOMPARE(desk.TakeMessage().Text, u"Tallymere Tutor will be displayed automatically in 10 seconds."_s);
        QCOMPARE(desk.TakeOption(ShowTutor), u"1"_s);
        QVERIFY(TheTutorTimer().isActive());
    }

    void TurnedOffItStaysAwayWhenAWindowEnds()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFileCreditors"_s); // which holds the timer
        Choose(u"mnuFileRegulars"_s);
        Show(Main);
        Choose(u"mnuTallymereTutor"_s);
        desk.TakeMessage();
        QCOMPARE(desk.TakeOption(ShowTutor), u"0"_s);
        Show(u"frmRegulars"_s);
        Show(u"frmCreditors"_s);
        CloseByFrame(u"frmCreditors"_s);
        QCOMPARE(ActiveWindow(), u"frmRegulars"_s); // and not the main window, which would read the option
        QVERIFY(!TheTutorTimer().isActive());
        LetItsTimePass();
        QVERIFY(!TheWindows.Loaded(Window));
    }

    // Freezing

    void AClickOnTheTeacherFreezesThePageAndTheNextOneReleasesIt()
    {
        GuiDesk desk;
        LayPictures(desk);
        desk.StartProgram();
        Tick();
        QCOMPARE(Teacher(), QColor(Qt::red));
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(PagesOf({u"mnuFileCreditors"_s, u"mnuFileRegulars"_s}), 0); // neither ticks nor commands replace it
        QCOMPARE(Instructions(), TextOfPage(1));
        TheWindows.Unload(u"frmRegulars"_s);
        TheWindows.Unload(u"frmCreditors"_s);
        WantPage(26); // the routes do
        QCOMPARE(Instructions(), TextOfPage(26));
        QCOMPARE(Teacher(), QColor(Qt::blue));
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::red));
        QVERIFY(TheTutorTimer().isActive());
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QVERIFY(!TheTutorTimer().isActive());
    }

    // Neither the main window, when the user comes back to it, nor the end of a window that held the timer lets the
    // next page come: it is the user's to release.
    void AFrozenPageStaysWhenAWorkWindowIsClosed_data()
    {
        QTest::addColumn<bool>("before");
        QTest::addColumn<QString>("option");
        QTest::newRow("frozen before the window opens") << true << u"1"_s;
        QTest::newRow("frozen while the window is open") << false << u"1"_s;
        QTest::newRow("the same without the main window's help") << false << u"5"_s;
    }
    void AFrozenPageStaysWhenAWorkWindowIsClosed()
    {
        QFETCH(bool, before);
        QFETCH(QString, option);
        GuiDesk desk;
        LayPictures(desk);
        desk.StartProgram();
        desk.Options[ShowTutor.toLower()] = option; // the main window leaves the timer alone at a 5
        WantPage(12);
        if (before)
            Click(Window, u"imgTallymereTutor"_s);
        Choose(u"mnuFileCreditors"_s);
        QVERIFY(!TheTutorTimer().isActive());
        if (!before)
            Click(Window, u"imgTallymereTutor"_s);
        const int page = before ? 12 : 3; // that of the window, where the tutor was free to show it
        CloseByFrame(u"frmCreditors"_s);
        QCOMPARE(ActiveWindow(), Main);
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(page));
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QCOMPARE(PagesOf({u"mnuFileRegulars"_s}), 0);
        Show(Main); // over the window that is open
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(page));
        TheWindows.Unload(u"frmRegulars"_s);
        Settle();
        QVERIFY(!TheTutorTimer().isActive());
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::red));
        QVERIFY(TheTutorTimer().isActive());
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(1));
    }

    void AFrozenPageStaysOverTheListOfTasks()
    {
        GuiDesk desk;
        desk.StartProgram();
        Tick();
        Choose(u"mnuHowDoI"_s);
        Click(Window, u"imgTallymereTutor"_s);
        CloseByFrame(u"frmHowDoI"_s); // without a topic
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(1));
        QVERIFY(!TheTutorTimer().isActive());
    }

    // Whoever turns the tutor on is promised a page in ten seconds; he sees that it goes on.
    void TurningTheTutorOnReleasesAFrozenOne()
    {
        GuiDesk desk;
        LayPictures(desk);
        desk.Options[ShowTutor.toLower()] = u"0"_s;
        desk.StartProgram();
        WantPage(25);
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::blue));
        Choose(u"mnuTallymereTutor"_s);
        QCOMPARE(desk.TakeMessage().Text, u"Tallymere Tutor will be displayed automatically in 10 seconds."_s);
        QCOMPARE(desk.TakeOption(ShowTutor), u"1"_s);
        QCOMPARE(Teacher(), QColor(Qt::red));
        Show(u"frmCreditors"_s);
        TheWindows.Unload(u"frmCreditors"_s); // the main window is activated and leaves it so
        Settle();
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(1));
        Click(Window, u"imgTallymereTutor"_s); // the first click freezes
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QVERIFY(!TheTutorTimer().isActive());
        Choose(u"mnuTallymereTutor"_s); // off: it goes, and with it what was frozen
        desk.TakeMessage();
        desk.TakeOption(ShowTutor);
        QVERIFY(!TheWindows.Loaded(Window));
        Choose(u"mnuTallymereTutor"_s);
        desk.TakeMessage();
        desk.TakeOption(ShowTutor);
        QVERIFY(!TheWindows.Loaded(Window)); // it comes with its first page
        LetItsTimePass();
        QCOMPARE(Instructions(), TextOfPage(2));
        QCOMPARE(Teacher(), QColor(Qt::red));
    }

    void TheKeysFreezeToo_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("blank") << Qt::Key_Space;
        QTest::newRow("Enter") << Qt::Key_Return;
    }
    void TheKeysFreezeToo()
    {
        QFETCH(Qt::Key, key);
        GuiDesk desk;
        desk.StartProgram();
        Tick();
        TheWindows.Loaded(Window)->activateWindow();
        Settle();
        auto &teacher = Find<QToolButton>(Window, u"imgTallymereTutor"_s);
        QTest::keyClick(&teacher, key);
        QVERIFY(!TheTutorTimer().isActive());
        QTest::keyClick(&teacher, key);
        QVERIFY(TheTutorTimer().isActive());
    }

    // A click that releases starts the timer whatever had stopped it.
    void ReleasingStartsATimerThatTheOptionHadStopped()
    {
        GuiDesk desk;
        desk.Options[ShowTutor.toLower()] = u"0"_s;
        desk.StartProgram();
        WantPage(1);
        Click(Window, u"imgTallymereTutor"_s);
        QVERIFY(!TheTutorTimer().isActive());
        Click(Window, u"imgTallymereTutor"_s);
        QVERIFY(TheTutorTimer().isActive());
    }

    void AFreshWindowIsNotFrozen()
    {
        GuiDesk desk;
        LayPictures(desk);
        desk.StartProgram();
        Tick();
        Click(Window, u"imgTallymereTutor"_s);
        CloseByFrame(Window);
        WantPage(1);
        QCOMPARE(Teacher(), QColor(Qt::red));
        TheTutorTimer().start();
        Click(Window, u"imgTallymereTutor"_s); // the first click of the new one freezes
        QVERIFY(!TheTutorTimer().isActive());
    }

    // The pictures

    void AMissingPictureOrOneThatIsNoneIsTheProgramsOwn_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("no picture") << QByteArray("BM and nothing that follows");
        QTest::newRow("cut short") << QByteArray::fromHex(
            "424d36750000000000003600000028000000640000006400000001001800");
    }
    void AMissingPictureOrOneThatIsNoneIsTheProgramsOwn()
    {
        QFETCH(QByteArray, file);
        GuiDesk desk;
        if (!file.isNull()) {
            desk.WriteFile(u"help\\teacher.bmp"_s, file);
            desk.WriteFile(u"help\\freeze.bmp"_s, file);
        }
        desk.StartProgram();
        Tick();
        const QColor pointing = Teacher();
        QCOMPARE(pointing, QColor(0xf4, 0xf9, 0xf6)); // its paper
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(0xe9, 0xf3, 0xf1));
        QVERIFY(!TheTutorTimer().isActive());
    }

    void APictureIsFoundInAnyLetterCase()
    {
        GuiDesk desk;
        LayPicture(desk, u"TEACHER.BMP"_s, Qt::red);
        desk.StartProgram();
        WantPage(1);
        QCOMPARE(Teacher(), QColor(Qt::red));
    }

    void APictureIsReadAnewWithEachClick()
    {
        GuiDesk desk;
        LayPictures(desk);
        desk.StartProgram();
        WantPage(1);
        LayPicture(desk, u"freeze.bmp"_s, Qt::green);
        Click(Window, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::green));
    }

    // Its place

    void ItStandsInTheLowerRightCornerOfTheScreen()
    {
        GuiDesk desk;
        desk.StartProgram();
        WantPage(1);
        const QRect frame = TheWindows.Loaded(Window)->frameGeometry();
        const QRect room = TheWindows.Loaded(Window)->screen()->availableGeometry();
        QCOMPARE(frame.bottomRight(), room.bottomRight());
        TheWindows.Loaded(Window)->move(10, 10);
        WantPage(2); // where the user has moved it, it stays
        QCOMPARE(TheWindows.Loaded(Window)->pos(), QPoint(10, 10));
    }

    // Beside a main window that leaves it room it shows a long page; else it is lower, so that it covers less.
    void ItIsLowerWhereItDoesNotFitBesideTheMainWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        TheWindows.Unload(Window);
        Form &main = *TheWindows.Loaded(Main);
        const QSize room = main.screen()->availableSize();
        const auto height = [&] {
            WantPage(1);
            const int shown = TheWindows.Loaded(Window)->height();
            TheWindows.Unload(Window);
            return shown;
        };
        main.setMinimumSize(1, 1);
        main.resize(room.width() / 4, 300);
        Settle();
        const int high = height();
        main.resize(room.width(), room.height() - 40);
        Settle();
        const int low = height();
        QVERIFY2(low < high && low >= high / 3, qPrintable(u"%1, %2"_s.arg(low).arg(high)));
        main.resize(room.width(), room.height() - 80 - low - 50); // which leaves a little more below it
        Settle();
        QCOMPARE(height(), qMin(low + 50, high));
        main.resize(room.width(), 100);
        Settle();
        QCOMPARE(height(), high);
    }

    // The welcome window stands where it is; only what it leaves in the corner is free.
    void TheSampleIsLowerWhereItWouldCoverTheWindowInFront()
    {
        GuiDesk desk;
        Show(u"frmTip"_s);
        Form &front = *TheWindows.Loaded(u"frmTip"_s);
        const QRect room = front.screen()->availableGeometry();
        front.setMinimumSize(1, 1);
        const auto height = [&](const QRect &place) {
            front.setGeometry(place);
            Settle();
            Show(Window);
            const int shown = TheWindows.Loaded(Window)->height();
            TheWindows.Unload(Window);
            return shown;
        };
        const int high = height(QRect(room.topLeft(), QSize(100, room.height() - 40)));
        const int low = height(QRect(room.topLeft(), room.size() - QSize(0, 40)));
        QVERIFY2(low < high, qPrintable(u"%1, %2"_s.arg(low).arg(high)));
        QCOMPARE(height(QRect(room.right() - 100, room.top(), 100, room.height() - 40)), low);
        QCOMPARE(height(QRect(room.right() - 100, room.top(), 100, 50)), high);
    }

    void TheSamplesWordsGiveWayToThePage()
    {
        GuiDesk desk;
        Show(Window); // as the welcome window does
        QVERIFY(Instructions().contains(u"This is only a sample."_s));
        desk.StartProgram();
        WantPage(1);
        QCOMPARE(Instructions(), TextOfPage(1));
    }

    void NothingMovesWhenThePageTurns()
    {
        GuiDesk desk;
        desk.WriteFile(u"help\\Instruction.txt"_s,
                       ";\r\nShort\r\n;\r\n" + QByteArray("A long line\r\n").repeated(100) + ";\r\n");
        desk.StartProgram();
        WantPage(1);
        const QRect place = TheWindows.Loaded(Window)->geometry();
        const QRect teacher = Find(Window, u"imgTallymereTutor"_s).geometry();
        for (const int page : {2, 3, 24}) {
            WantPage(page);
            QCOMPARE(TheWindows.Loaded(Window)->geometry(), place);
            QCOMPARE(Find(Window, u"imgTallymereTutor"_s).geometry(), teacher);
        }
    }

    void TheLinesOfTheFooterAreNotBroken()
    {
        GuiDesk desk;
        desk.StartProgram();
        WantPage(1);
        const auto &text = Find<QTextEdit>(Window, u"rtbInstructions"_s);
        for (QTextBlock line = text.document()->begin(); line.isValid(); line = line.next())
            QVERIFY2(line.layout()->lineCount() <= 1, qPrintable(line.text()));
    }

    void TheMainWindowStandsLeftOfItAndIsSeenWhole()
    {
        GuiDesk desk;
        desk.StartProgram();
        const Form &main = *TheWindows.Loaded(Main);
        const Form &tutor = *TheWindows.Loaded(Window);
        QVERIFY(!tutor.isVisible()); // loaded for its place
        const QRect room = main.screen()->availableGeometry();
        const bool fits = tutor.x() - main.width() >= room.left();
        QCOMPARE(main.x(), fits ? tutor.x() - main.width() : room.left());
        const int spare = room.height() - 40 - main.height();             // the title bar is not there yet
        QCOMPARE(main.y(), room.top() + (fits ? qMax(0, spare / 2) : 0)); // at the top the tutor covers least of it
    }

    void ItsTitleAndItsTeacherSayWhatAClickDoes()
    {
        GuiDesk desk;
        TheWindows.Touch(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Tallymere Tutor - Click Tutor to Freeze Hint!"_s);
        const auto &teacher = Find<QToolButton>(Window, u"imgTallymereTutor"_s);
        QCOMPARE(teacher.accessibleName(), u"Tallymere Tutor"_s);
        QVERIFY(!teacher.toolTip().isEmpty());
    }
};

REGISTER_TEST(gui_frmTallymereTutor)
#include "gui_frmTallymereTutor.moc"
