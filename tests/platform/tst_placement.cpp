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
