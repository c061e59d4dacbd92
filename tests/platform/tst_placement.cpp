// Where a window opens beside the one that it was called from.
#include "TestProgram.h"

#include "platform/windows/Placement.h"

#include <QtTest>

namespace {

const QRect Screen(0, 0, 1920, 1050);
const QRect Second(1920, 0, 1600, 900);
const QSize Window(400, 500);

} // namespace

class tst_placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItStandsBesideItsCaller_data()
    {
        QTest::addColumn<QRect>("caller");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("right") << QRect(500, 100, 900, 700) << Window << QPoint(1400, 100);
        QTest::newRow("right, to the last pixel") << QRect(620, 100, 900, 700) << Window << QPoint(1520, 100);
        QTest::newRow("left, for want of a pixel") << QRect(621, 100, 900, 700) << Window << QPoint(221, 100);
        QTest::newRow("left, to the last pixel") << QRect(400, 100, 1200, 700) << Window << QPoint(0, 100);
        QTest::newRow("below") << QRect(300, 20, 1400, 500) << Window << QPoint(300, 520);
        QTest::newRow("above") << QRect(300, 520, 1400, 500) << Window << QPoint(300, 20);
        QTest::newRow("raised, to stay on the screen") << QRect(500, 800, 900, 200) << Window << QPoint(1400, 550);
        QTest::newRow("lowered, to stay on the screen") << QRect(500, -50, 900, 700) << Window << QPoint(1400, 0);
    }
    void ItStandsBesideItsCaller()
    {
        QFETCH(QRect, caller);
        QFETCH(QSize, window);
        QFETCH(QPoint, place);
        QCOMPARE(Placed(window, {.Screens = {Screen}, .Caller = caller}), place);
    }

    void ItStaysOnTheScreenOfItsCaller_data()
    {
        QTest::addColumn<QRect>("caller");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("the first") << QRect(1000, 100, 900, 700) << QPoint(600, 100);
        QTest::newRow("the second") << QRect(1930, 100, 900, 700) << QPoint(2830, 100);
        QTest::newRow("the second, left") << QRect(2500, 100, 900, 700) << QPoint(2100, 100);
        QTest::newRow("most of it on the second") << QRect(1800, 100, 900, 700) << QPoint(2700, 100);
        QTest::newRow("most of it on the first") << QRect(1300, 100, 900, 700) << QPoint(900, 100);
    }
    void ItStaysOnTheScreenOfItsCaller()
    {
        QFETCH(QRect, caller);
        QFETCH(QPoint, place);
        QCOMPARE(Placed(Window, {.Screens = {Screen, Second}, .Caller = caller}), place);
    }

    void WithoutRoomItCoversLeast()
    {
        const QRect small(0, 0, 1092, 590);
        const QRect caller(50, 20, 900, 560);
        // 50 pixels are free on the left, 142 on the right, 20 above.
        QCOMPARE(Placed(Window, {.Screens = {small}, .Caller = caller}), QPoint(692, 0));
        // The field that it fills stands there: it moves off it, although it covers more of the caller.
        const QRect field(800, 200, 100, 30);
        QCOMPARE(Placed(Window, {.Screens = {small}, .Caller = caller, .Field = field}), QPoint(0, 0));
    }

    void AFieldIsCoveredOnlyWhereNothingElseIsLeft()
    {
        const QRect small(0, 0, 500, 520);
        const QRect field(10, 300, 300, 30);
        const QPoint place = Placed(Window, {.Screens = {small}, .Caller = QRect(0, 0, 500, 520), .Field = field});
        const QRect covered = QRect(place, Window).intersected(field);
        QCOMPARE(covered.width(), 210); // right as far as the screen goes: 90 pixels of the field are seen
    }

    void WindowsThatStandThereAreLeftFree()
    {
        const QRect caller(500, 100, 900, 700);
        Surroundings around{.Screens = {Screen}, .Caller = caller};
        QList<QRect> windows;
        for (int i = 0; i < 4; ++i) {
            windows += QRect(Placed(Window, around), Window);
            QVERIFY(Screen.contains(windows.last()));
            QVERIFY(!windows.last().intersects(caller));
            around.Others = windows;
        }
        QCOMPARE(windows[0].topLeft(), QPoint(1400, 100));
        QCOMPARE(windows[1].topLeft(), QPoint(100, 100)); // the other side is free
        for (int i = 0; i < 4; ++i)                       // then they overlap, none quite covering another
            for (int j = 0; j < i; ++j)
                QVERIFY(windows[i].topLeft() != windows[j].topLeft());
    }

    // The main window and the tutor side by side: the place beside the main window is not wholly free, but one that is
    // stands nearer than the corners of the screen.
    void TheNearestFreePlaceIsTaken_data()
    {
        QTest::addColumn<QRect>("caller");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("over what is read") << QRect(150, 250, 900, 700) << QSize(500, 480) << QPoint(1050, 80);
        QTest::newRow("to the last pixel") << QRect(150, 250, 900, 700) << QSize(550, 560) << QPoint(1050, 0);
        QTest::newRow("higher than the room") << QRect(150, 200, 900, 350) << QSize(500, 561) << QPoint(150, 550);
        QTest::newRow("beside it there is room") << QRect(150, 40, 900, 900) << QSize(500, 480) << QPoint(1050, 40);
        QTest::newRow("left of the caller") << QRect(300, 600, 750, 500) << QSize(300, 480) << QPoint(0, 600);
        QTest::newRow("above the caller") << QRect(50, 560, 1000, 600) << QSize(600, 560) << QPoint(50, 0);
    }
    void TheNearestFreePlaceIsTaken()
    {
        QFETCH(QRect, caller);
        QFETCH(QSize, window);
        QFETCH(QPoint, place);
        const QRect tutor(1050, 560, 550, 610);
        const QRect screen(0, 0, 1600, 1170);
        QCOMPARE(Placed(window, {.Screens = {screen}, .Caller = caller, .Read = {tutor}}), place);
    }

    void BetweenTwoWindowsThereIsRoom()
    {
        // Right of the caller stands a window, and below that one there is just room.
        const QRect caller(0, 100, 900, 700);
        const QRect beside(900, 0, 500, 400);
        const QRect far(1450, 0, 470, 1050);
        QCOMPARE(Placed({550, 600}, {.Screens = {Screen}, .Caller = caller, .Others = {beside, far}}),
                 QPoint(900, 400));
        QCOMPARE(Placed({550, 600}, {.Screens = {Screen}, .Caller = caller, .Read = {far}, .Others = {beside}}),
                 QPoint(900, 400));
    }

    void APlaceThatTouchesTheCallerIsNearerThanOneInLineWithIt()
    {
        // Above the caller stands a window, right of it another that leaves room only over itself.
        const QRect caller(0, 500, 900, 500);
        const QList<QRect> others{QRect(0, 0, 900, 500), QRect(900, 600, 60, 450)};
        QCOMPARE(Placed({500, 250}, {.Screens = {Screen}, .Caller = caller, .Others = others}), QPoint(900, 350));
    }

    void WhatIsReadIsLeftFreeBeforeTheCaller()
    {
        // At double scale: the caller fills the screen, and what is read stands over it.
        const QRect small(0, 0, 960, 520);
        const QRect caller(0, 0, 900, 500);
        const QRect read(520, 200, 440, 320);
        Surroundings around{.Screens = {small}, .Caller = caller, .Read = {read}};
        const QRect place(Placed({400, 480}, around), QSize(400, 480));
        QVERIFY(!place.intersects(read));
        QVERIFY(small.contains(place));
        QCOMPARE(place.top(), 40); // and of the caller it covers least
        // The field that it fills comes before what is read.
        around.Field = {10, 250, 500, 30};
        const QRect off(Placed({400, 480}, around), QSize(400, 480));
        QVERIFY(!off.intersects(around.Field));
        QVERIFY(off.intersects(read));
        // Other windows come after the caller.
        around = {.Screens = {Screen}, .Caller = QRect(0, 0, 1400, 1050), .Others = {QRect(1400, 0, 520, 1050)}};
        QCOMPARE(Placed({500, 480}, around), QPoint(1400, 0));
    }

    void OnAFullScreenTheyCascade()
    {
        const QRect caller(0, 0, 1092, 590);
        Surroundings around{.Screens = {caller}, .Caller = caller};
        QSet<QPair<int, int>> places;
        for (int i = 0; i < 6; ++i) {
            const QPoint place = Placed(Window, around);
            places.insert({place.x(), place.y()});
            around.Others += QRect(place, Window);
        }
        QCOMPARE(places.size(), 6);
    }

    void AModalWindowIsCentredOverItsCaller()
    {
        const QRect caller(500, 100, 900, 700);
        Surroundings around{.Screens = {Screen}, .Caller = caller, .OverCaller = true};
        QCOMPARE(Placed({400, 300}, around), QPoint(749, 299));
        around.Others = {QRect(450, 50, 1000, 800)}; // the window that the caller was called from, behind it
        QCOMPARE(Placed({400, 300}, around), QPoint(749, 299));
        around.Others.clear();
        around.Read = {QRect(1100, 500, 800, 550)}; // it stands beside or above it, whichever is nearer to the middle
        QCOMPARE(Placed({400, 300}, around), QPoint(700, 299));
        around.Read = {QRect(900, 590, 1020, 460)};
        QCOMPARE(Placed({400, 300}, around), QPoint(749, 290));
        around.Read.clear();
        around.Field = {800, 400, 120, 30}; // which it may be asked to fill
        QCOMPARE(Placed({400, 300}, around), QPoint(1400, 100));
    }

    void OfAWindowThatIsTooLargeTheUpperLeftCornerIsSeen()
    {
        QCOMPARE(Placed({2000, 1200}, {.Screens = {Screen}, .Caller = QRect(500, 100, 900, 700)}), QPoint(0, 0));
        QCOMPARE(Placed({2000, 1200}, {.Screens = {Second}, .Caller = QRect(2000, 100, 900, 700)}), QPoint(1920, 0));
    }
};

REGISTER_TEST(tst_placement)
#include "tst_placement.moc"
