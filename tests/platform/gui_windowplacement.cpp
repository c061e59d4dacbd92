// Windows that open beside the one that they were called from: what the register asks and the toolkit does.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "platform/windows/WindowPlacement.h"

#include <QScreen>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window of a size with one field.
class Toy : public Form
{
public:
    explicit Toy(const QSize &size = {200, 150})
    {
        auto *field = new QLineEdit(this);
        field->setObjectName(u"txtField"_s);
        field->setGeometry(10, 10, 100, 24);
        resize(size);
    }
};

class Onlooker : public Toy
{
public:
    bool TakesActivation() const override { return false; }
};

QRect PlaceOf(const QString &window)
{
    return TheWindows.Loaded(window)->frameGeometry();
}

/// Right of a window, the tops in line.
QPoint RightOf(const QString &window)
{
    return PlaceOf(window).topRight() + QPoint(1, 0);
}

QRect Screen()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

} // namespace

class gui_windowplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TheWindows.Register(u"frmHub"_s, [] { return new Toy({300, 300}); });
        TheWindows.Register(u"frmOne"_s, [] { return new Toy; });
        TheWindows.Register(u"frmTwo"_s, [] { return new Toy; });
        TheWindows.Register(u"frmOnlooker"_s, [] { return new Onlooker; });
        Show(u"frmHub"_s);
        TheWindows.Loaded(u"frmHub"_s)->move(20, 100);
    }
    void cleanup()
    {
        TheWindows.Reset();
        Settle();
    }

    void AWindowOpensBesideItsCaller()
    {
        QVERIFY(Screen().width() >= 800); // of the offscreen platform
        Show(u"frmOne"_s);
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), RightOf(u"frmHub"_s));
        Show(u"frmTwo"_s); // called from the one
        QCOMPARE(PlaceOf(u"frmTwo"_s).topLeft(), RightOf(u"frmOne"_s));
    }

    void OneThatIsMovedStaysWhileItIsVisible()
    {
        Show(u"frmOne"_s);
        TheWindows.Loaded(u"frmOne"_s)->move(20, 500);
        Show(u"frmHub"_s);
        Show(u"frmOne"_s);
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), QPoint(20, 500));
        // Nothing is remembered: neither of one that is hidden nor of one that has ended.
        TheWindows.Hide(u"frmOne"_s);
        Show(u"frmOne"_s);
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), RightOf(u"frmHub"_s));
        TheWindows.Loaded(u"frmOne"_s)->move(20, 500);
        TheWindows.Unload(u"frmOne"_s);
        Show(u"frmOne"_s);
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), RightOf(u"frmHub"_s));
    }

    void TheFieldWithTheFocusIsNotCovered()
    {
        // The hub fills the screen; its field stands where a window without room would open.
        Form &hub = *TheWindows.Loaded(u"frmHub"_s);
        hub.setGeometry(Screen());
        auto &field = Find<QLineEdit>(u"frmHub"_s, u"txtField"_s);
        Show(u"frmOne"_s);
        const QRect place = PlaceOf(u"frmOne"_s);
        QVERIFY(Screen().contains(place));
        TheWindows.Unload(u"frmOne"_s);
        field.move(place.center() - Screen().topLeft());
        hub.FocusOn(&field);
        Show(u"frmOne"_s);
        QVERIFY(PlaceOf(u"frmOne"_s) != place);
        QVERIFY(!PlaceOf(u"frmOne"_s).intersects(QRect(field.mapToGlobal(QPoint()), field.size())));
    }

    void AModalWindowStandsOverItsCaller()
    {
        QRect place;
        QTimer::singleShot(0, qApp, [&] {
            place = PlaceOf(u"frmOne"_s);
            TheWindows.Unload(u"frmOne"_s);
        });
        Find(u"frmHub"_s, u"txtField"_s).setEnabled(false); // nothing there to be filled
        TheWindows.ShowModal(u"frmOne"_s);
        QVERIFY((place.center() - PlaceOf(u"frmHub"_s).center()).manhattanLength() <= 2);
    }

    void AWindowGoesAlongWithACallerThatIsStillPutToItsPlace_data()
    {
        QTest::addColumn<bool>("isNew");   // the caller is not on the screen yet
        QTest::addColumn<bool>("isMoved"); // the user has moved the window meanwhile
        QTest::addColumn<bool>("isLater"); // the caller is moved when it has stood for long
        QTest::addColumn<bool>("goesAlong");
        QTest::newRow("the caller is new") << true << false << false << true;
        QTest::newRow("the user has moved the window") << true << true << false << false;
        QTest::newRow("the user moves the caller later") << true << false << true << false;
        QTest::newRow("the caller stands") << false << false << false << false;
    }
    void AWindowGoesAlongWithACallerThatIsStillPutToItsPlace()
    {
        QFETCH(bool, isNew);
        QFETCH(bool, isMoved);
        QFETCH(bool, isLater);
        QFETCH(bool, goesAlong);
        const QString caller = u"frmTwo"_s;
        TheWindows.Show(caller);
        if (!isNew)
            Settle();
        TheWindows.Show(u"frmOne"_s);
        const QPoint before = PlaceOf(u"frmOne"_s).topLeft();
        QCOMPARE(before, RightOf(caller));
        Settle();
        if (isMoved)
            TheWindows.Loaded(u"frmOne"_s)->move(20, 500);
        if (isLater)
            QTest::qWait(900);
        TheWindows.Loaded(caller)->move(340, 420);
        QTest::qWait(600); // it may be placed once more when it has stood for a moment
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), isMoved ? QPoint(20, 500) : goesAlong ? RightOf(caller) : before);
        QVERIFY(RightOf(caller) != before);
    }

    void OneThatGrowsAtItsShowingIsPlacedAnew_data()
    {
        QTest::addColumn<bool>("isMoved"); // the user has moved it meanwhile
        QTest::addColumn<bool>("isLater");
        QTest::addColumn<int>("height"); // that it grows to
        QTest::newRow("it grows off the screen") << false << false << 340;
        QTest::newRow("it grows within the screen") << false << false << 160;
        QTest::newRow("the user has moved it") << true << false << 340;
        QTest::newRow("it grows later") << false << true << 340;
    }
    void OneThatGrowsAtItsShowingIsPlacedAnew()
    {
        QFETCH(bool, isMoved);
        QFETCH(bool, isLater);
        QFETCH(int, height);
        Form &hub = *TheWindows.Loaded(u"frmHub"_s);
        Find(u"frmHub"_s, u"txtField"_s).setEnabled(false); // nothing there to be filled
        hub.move(Screen().bottomRight() - QPoint(300, 300));
        Settle();
        Show(u"frmOne"_s);
        Form &one = *TheWindows.Loaded(u"frmOne"_s);
        const QSize frame = one.frameGeometry().size() - one.size();
        const QPoint leftOf = PlaceOf(u"frmHub"_s).topLeft() - QPoint(200 + frame.width(), 0);
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), leftOf);
        if (isMoved)
            one.move(20, 30);
        if (isLater)
            QTest::qWait(900);
        one.resize(260, height);
        QTest::qWait(600);
        const QPoint within(leftOf.x() - 60, Screen().bottom() + 1 - 340 - frame.height());
        const bool stays = isLater || height < 300;
        QCOMPARE(PlaceOf(u"frmOne"_s).topLeft(), isMoved ? QPoint(20, 30) : stays ? leftOf : within);
    }

    void WhatIsOnlyLookedAtKeepsItsOwnPlace()
    {
        TheWindows.Touch(u"frmOnlooker"_s).move(7, 9);
        Show(u"frmOnlooker"_s);
        QCOMPARE(PlaceOf(u"frmOnlooker"_s).topLeft(), QPoint(7, 9));
    }

    void WhatIsOnlyLookedAtIsNotCovered()
    {
        // The hub fills the screen, and the onlooker stands in the corner where a window without room would open.
        Form &hub = *TheWindows.Loaded(u"frmHub"_s);
        hub.setGeometry(Screen());
        Find(u"frmHub"_s, u"txtField"_s).setEnabled(false); // nothing there to be filled
        Show(u"frmOne"_s);
        const QRect place = PlaceOf(u"frmOne"_s);
        TheWindows.Unload(u"frmOne"_s);
        TheWindows.Touch(u"frmOnlooker"_s).setGeometry(place);
        Show(u"frmOnlooker"_s);
        Show(u"frmOne"_s);
        QVERIFY(!PlaceOf(u"frmOne"_s).intersects(PlaceOf(u"frmOnlooker"_s)));
        TheWindows.Unload(u"frmOne"_s);
        TheWindows.Hide(u"frmOnlooker"_s); // unseen it is not read
        Show(u"frmHub"_s);
        Show(u"frmOne"_s);
        QCOMPARE(PlaceOf(u"frmOne"_s), place);
        // It comes before the caller, another window after it.
        TheWindows.Unload(u"frmOne"_s);
        hub.setGeometry(QRect(Screen().topLeft(), QSize(250, Screen().height())));
        const QRect beside(hub.frameGeometry().topRight() + QPoint(1, 0), Screen().bottomRight());
        TheWindows.Loaded(u"frmOnlooker"_s)->setGeometry(beside);
        TheWindows.Show(u"frmOnlooker"_s);
        Show(u"frmHub"_s);
        Show(u"frmOne"_s);
        QVERIFY(!PlaceOf(u"frmOne"_s).intersects(beside));
    }

    void TheMainWindowStandsWhereTheWindowSystemPutsIt()
    {
        GuiDesk desk;
        State.CurrentPayPeriodConfirmed = true;
        TheWindows.Touch(u"frmMain"_s).move(3, 4);
        Show(u"frmMain"_s); // from the hub
        QCOMPARE(PlaceOf(u"frmMain"_s).topLeft(), QPoint(3, 4));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }
};

REGISTER_TEST(gui_windowplacement)
#include "gui_windowplacement.moc"
