// The list of tasks: its labels, its two pages, and what becomes of the tutor and its timer.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/Options.h"
#include "foundation/Tutor.h"
#include "guidance/TutorPages.h"
#include "platform/controls/Picture.h"

#include <QAccessible>
#include <QBuffer>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Main = u"frmMain"_s;
const QString Tutor = u"frmTallymereTutor"_s;
const QString Window = u"frmHowDoI"_s;
constexpr int LastOfFirstPanel = 16;

const QStringList Captions{
    u"Calculate or change my average net percentage"_s,
    u"View and print my budget"_s,
    u"Add, change, or delete creditors/monthly obligations"_s,
    u"View my current shopping list"_s,
    u"View and change environment settings"_s,
    u"Add, change, or delete extra items"_s,
    u"Calculate loan interest rates"_s,
    u"Calculate loan payments"_s,
    u"Add, change, or delete items on the master shopping list"_s,
    u"Access the math calculator"_s,
    u"Select and view a shopping list"_s,
    u"View and print my monthly overhead"_s,
    u"Pay off my bills with Tallymere"_s,
    u"Print my current shopping list"_s,
    u"Set up my printer for Tallymere"_s,
    u"Add, view or delete projects"_s,
    u"Add, change, or delete regular items"_s,
    u"Calculate the future value of my savings"_s,
    u"View my savings forecast"_s,
    u"Determine my upcoming pay periods"_s,
    u"Search for help"_s,
    u"Set Tallymere to a desired pay period"_s,
    u"Switch the Tip of the Day on or off"_s,
    u"Use Tallymere's Wage Calculator"_s,
};

QString Label(int index)
{
    return u"lblHowDoI%1"_s.arg(index);
}

QTimer &TheTutorTimer()
{
    return Find<QTimer>(Main, u"tmrAutoTutor"_s);
}

QString FrontPanel()
{
    return Find<QStackedWidget>(Window, u"stkPanels"_s).currentWidget()->objectName();
}

void OpenList()
{
    Click(Main, u"cmdHowDoI"_s);
    QCOMPARE(ActiveWindow(), Window);
}

void ChooseTopic(int index)
{
    if (index > LastOfFirstPanel)
        Click(Window, u"cmdMore"_s);
    Click(Window, Label(index));
}

QString TopicPanel()
{
    return Find<QStackedWidget>(Tutor, u"stkTopics"_s).currentWidget()->objectName();
}

QString Instructions()
{
    return Find<QTextEdit>(Tutor, u"rtbInstructions"_s).toPlainText();
}

bool ShowsPage(int page)
{
    return IsShown(Tutor) && TopicPanel() == TutorPage(page).Panel &&
           Instructions().startsWith(u"\nPage %1\n"_s.arg(page));
}

void LayPicture(const RecordingDesk &desk, const QString &name, const QColor &colour)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "BMP");
    desk.WriteFile(u"help\\"_s + name, bytes);
}

QColor Teacher()
{
    const auto &picture = Find<QToolButton>(Tutor, u"imgTallymereTutor"_s);
    return picture.icon().pixmap(picture.iconSize()).toImage().pixelColor(5, 5);
}

/// What of the window stands in front of the rest.
const QWidget *FrontChild()
{
    return TheWindows.Loaded(Window)->findChildren<QWidget *>(Qt::FindDirectChildrenOnly).last();
}

} // namespace

class gui_frmHowDoI : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The list

    void EveryLabelHasItsCaptionAndActsAsAButton()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"How Do I...?"_s);
        QCOMPARE(Captions.size(), 24);
        for (int index = 0; index < Captions.size(); ++index) {
            auto &label = Find<QAbstractButton>(Window, Label(index));
            QCOMPARE(label.text(), Captions[index]);
            QVERIFY(label.focusPolicy() & Qt::TabFocus);
            const QAccessibleInterface *voice = QAccessible::queryAccessibleInterface(&label);
            QCOMPARE(voice->text(QAccessible::Name), Captions[index]);
            QCOMPARE(voice->role(), QAccessible::Button);
            QVERIFY(!label.icon().isNull());
            QCOMPARE(label.icon().name(), TutorPage(index + 1).Icon);
        }
        QVERIFY(!TheWindows.Loaded(Window)->findChild<QWidget *>(Label(24)));
    }

    void TheButtonsTurnThePages()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        QCOMPARE(FrontPanel(), u"SSPanel1"_s);
        QCOMPARE(TextOf(Window, u"cmdMore"_s), u"&More"_s);
        QCOMPARE(TextOf(Window, u"cmdPrevious"_s), u"&Previous"_s);
        const auto seen = [](int index) { return Find(Window, Label(index)).isVisible(); };
        for (int index = 0; index < Captions.size(); ++index)
            QCOMPARE(seen(index), index <= LastOfFirstPanel);
        Click(Window, u"cmdMore"_s);
        QCOMPARE(FrontPanel(), u"SSPanel2"_s);
        QCOMPARE(FocusOf(Window), u"cmdPrevious"_s);
        for (int index = 0; index < Captions.size(); ++index)
            QCOMPARE(seen(index), index > LastOfFirstPanel);
        Click(Window, u"cmdPrevious"_s);
        QCOMPARE(FrontPanel(), u"SSPanel1"_s);
        QCOMPARE(FocusOf(Window), u"cmdMore"_s);
    }

    void TheTeacherStandsInFrontOfBothPages()
    {
        GuiDesk desk;
        LayPicture(desk, u"teacher.bmp"_s, Qt::red);
        desk.StartProgram();
        OpenList();
        const auto &teacher = Find<Picture>(Window, u"imgTallymereTutor"_s);
        QCOMPARE(teacher.Shown().pixmap(20, 20).toImage().pixelColor(5, 5), QColor(Qt::red));
        for (const QString &turn : {u"cmdMore"_s, u"cmdPrevious"_s}) {
            QCOMPARE(FrontChild(), &Find(Window, u"pnlTallymereTutor"_s));
            Find(Window, u"stkPanels"_s).raise();
            Click(Window, turn);
        }
        QCOMPARE(FrontChild(), &Find(Window, u"pnlTallymereTutor"_s));
    }

    void TheKeysReachEveryTopic()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        QCOMPARE(FocusOf(Window), Label(0));
        QStringList reached;
        for (int step = 0; step <= LastOfFirstPanel; ++step) {
            reached += FocusOf(Window);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached.last(), Label(LastOfFirstPanel));
        QCOMPARE(FocusOf(Window), u"cmdMore"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(FrontPanel(), u"SSPanel2"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // round to the first one
        QCOMPARE(FocusOf(Window), Label(LastOfFirstPanel + 1));
    }

    // A topic

    void ATopicFreezesItsPageOnTheScreen_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < Captions.size(); ++index)
            QTest::addRow("%d: %s", index, qPrintable(Captions[index])) << index;
    }
    void ATopicFreezesItsPageOnTheScreen()
    {
        QFETCH(int, index);
        GuiDesk desk;
        LayPicture(desk, u"teacher.bmp"_s, Qt::red);
        LayPicture(desk, u"freeze.bmp"_s, Qt::blue);
        desk.StartProgram();
        OpenList();
        QVERIFY(!TheTutorTimer().isActive());
        ChooseTopic(index);
        QVERIFY(ShowsPage(index + 1));
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(RememberedTutorTimer, QSet<QString>());
        // The user has asked for it, so he stands there and not in the main window, which would start the timer again.
        QCOMPARE(ActiveWindow(), Tutor);
        QCOMPARE(QApplication::activeWindow(), TheWindows.Loaded(Tutor));
        QCOMPARE(desk.SavedOptions, QSet<QString>()); // the topic of the tip changes no setting
    }

    void ATopicIsChosenByTheKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("blank") << Qt::Key_Space;
        QTest::newRow("Enter") << Qt::Key_Return;
    }
    void ATopicIsChosenByTheKeys()
    {
        QFETCH(Qt::Key, key);
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        QTest::keyClick(&Find(Window, Label(0)), Qt::Key_Down);
        QCOMPARE(FocusOf(Window), Label(1));
        QTest::keyClick(&Find(Window, Label(1)), key);
        Settle();
        QVERIFY(ShowsPage(2));
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void TheFirstClickOnTheTeacherAfterwardsFreezesAndTheSecondReleases()
    {
        GuiDesk desk;
        LayPicture(desk, u"teacher.bmp"_s, Qt::red);
        LayPicture(desk, u"freeze.bmp"_s, Qt::blue);
        desk.StartProgram();
        OpenList();
        ChooseTopic(5);
        Click(Tutor, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::blue));
        QVERIFY(!TheTutorTimer().isActive());
        Click(Tutor, u"imgTallymereTutor"_s);
        QCOMPARE(Teacher(), QColor(Qt::red));
        QVERIFY(TheTutorTimer().isActive());
    }

    void TheUsersReturnToTheMainWindowStartsTheTimer()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        ChooseTopic(0);
        Show(Main);
        QVERIFY(TheTutorTimer().isActive());
        QVERIFY(ShowsPage(1));
    }

    void ClosingTheTutorLeadsBackToTheMainWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        ChooseTopic(0);
        CloseByFrame(Tutor);
        QCOMPARE(ActiveWindow(), Main);
        Choose(u"mnuFileCreditors"_s); // from here on it takes no activation again
        QCOMPARE(ActiveWindow(), u"frmCreditors"_s);
        QVERIFY(IsShown(Tutor));
    }

    void WithTheOptionOffTheListShowsPagesAllTheSame()
    {
        GuiDesk desk;
        desk.Options[ShowTutor.toLower()] = u"0"_s;
        desk.StartProgram();
        TheWindows.Unload(Tutor);
        OpenList();
        ChooseTopic(23);
        QVERIFY(ShowsPage(24));
        QVERIFY(!TheTutorTimer().isActive());
        Show(Main);
        QVERIFY(!TheTutorTimer().isActive());
    }

    void ATopicReplacesAFrozenPage()
    {
        GuiDesk desk;
        desk.StartProgram();
        Q_EMIT TheTutorRequests.PageWanted(1);
        Settle();
        Click(Tutor, u"imgTallymereTutor"_s); // frozen by a click
        OpenList();
        ChooseTopic(7);
        QVERIFY(ShowsPage(8));
        QVERIFY(!TheTutorTimer().isActive());
        Click(Tutor, u"imgTallymereTutor"_s); // and so the next click releases
        QVERIFY(TheTutorTimer().isActive());
    }

    // Without a topic

    void ClosingItWithoutATopicLetsTheTimerGoOn_data()
    {
        QTest::addColumn<bool>("running");
        QTest::newRow("the timer ran") << true;
        QTest::newRow("the timer stood still") << false;
    }
    void ClosingItWithoutATopicLetsTheTimerGoOn()
    {
        QFETCH(bool, running);
        GuiDesk desk;
        desk.Options[ShowTutor.toLower()] = u"5"_s; // the main window leaves the timer as it is
        desk.StartProgram();
        if (running)
            TheTutorTimer().start();
        OpenList();
        QVERIFY(!TheTutorTimer().isActive());
        CloseByFrame(Window);
        QCOMPARE(TheTutorTimer().isActive(), running);
        QCOMPARE(RememberedTutorTimer, QSet<QString>());
        QVERIFY(!IsShown(Tutor));
        QCOMPARE(ActiveWindow(), Main);
    }

    void EscClosesIt()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        Settle();
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void ItOpensOnItsFirstPageAndChoosesNothingYet()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        Click(Window, u"cmdMore"_s);
        CloseByFrame(Window);
        Choose(u"mnuHowDoI"_s);
        QCOMPARE(FrontPanel(), u"SSPanel1"_s);
        CloseByFrame(Window);
        QVERIFY(TheTutorTimer().isActive());
    }

    void AllTopicsOfAPageAreSeenAtOnce()
    {
        GuiDesk desk;
        desk.StartProgram();
        OpenList();
        const auto &area = Find<QScrollArea>(Window, u"scrTopics1"_s);
        const int room = TheWindows.Loaded(Window)->screen()->availableSize().height();
        const int wanted = Find(Window, u"topics1"_s).sizeHint().height();
        if (TheWindows.Loaded(Window)->height() < room - 60)
            QVERIFY2(area.viewport()->height() >= wanted,
                     qPrintable(u"%1 of %2"_s.arg(area.viewport()->height()).arg(wanted)));
        // Where the screen is too low for them, they are scrolled to.
        TheWindows.Loaded(Window)->resize(TheWindows.Loaded(Window)->minimumSizeHint());
        Settle();
        Find(Window, Label(0)).setFocus();
        for (int step = 0; step < LastOfFirstPanel; ++step)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(FocusOf(Window), Label(LastOfFirstPanel));
        QVERIFY(!Find(Window, Label(LastOfFirstPanel)).visibleRegion().isEmpty());
    }
};

REGISTER_TEST(gui_frmHowDoI)
#include "gui_frmHowDoI.moc"
