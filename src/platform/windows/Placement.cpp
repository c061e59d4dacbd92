#include "platform/windows/Placement.h"

#include <QPoint>
#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr int CascadeStep = 32; // shows the title of the window below
constexpr int MostSteps = 8;

qint64 Area(const QRect &rectangle)
{
    return rectangle.isEmpty() ? 0 : qint64(rectangle.width()) * rectangle.height();
}

QRect ScreenOf(const QRect &window, const QList<QRect> &screens)
{
    return *std::max_element(screens.begin(), screens.end(), [&](const QRect &one, const QRect &other) {
        return Area(one.intersected(window)) < Area(other.intersected(window));
    });
}

/// As near to the place as the screen allows. Of a window that is too large the upper left corner is seen.
QPoint Within(const QRect &screen, const QPoint &place, const QSize &window)
{
    const int right = screen.right() + 1 - window.width();
    const int bottom = screen.bottom() + 1 - window.height();
    return {qMax(screen.left(), qMin(place.x(), right)), qMax(screen.top(), qMin(place.y(), bottom))};
}

/// Pixels between two rectangles; 0 where they touch or overlap.
int Gap(const QRect &one, const QRect &other)
{
    const int across = qMax(one.left() - other.right(), other.left() - one.right()) - 1;
    const int down = qMax(one.top() - other.bottom(), other.top() - one.bottom()) - 1;
    return qMax(across, 0) + qMax(down, 0);
}

/// The places at which the window is in line with the caller, another window or an edge of the screen on two of its
/// sides. The free place that is nearest to the caller is one of them.
QList<QPoint> TouchingPlaces(const QSize &window, const Surroundings &around, const QRect &screen)
{
    QList<int> lefts{screen.left(), screen.right() + 1 - window.width()};
    QList<int> tops{screen.top(), screen.bottom() + 1 - window.height()};
    for (const QRect &other : QList{around.Caller} + around.Read + around.Others) {
        lefts += {other.right() + 1, other.left() - window.width(), other.left()};
        tops += {other.bottom() + 1, other.top() - window.height(), other.top()};
    }
    QList<QPoint> places;
    for (const int left : lefts)
        for (const int top : tops)
            places += {left, top};
    return places;
}

/// Right of the caller, left of it, below and above.
QList<QPoint> SidesOf(const QRect &caller, const QSize &window)
{
    return {{caller.right() + 1, caller.top()},
            {caller.left() - window.width(), caller.top()},
            {caller.left(), caller.bottom() + 1},
            {caller.left(), caller.top() - window.height()}};
}

/// The middle of the caller, and the nearest places to it beside and above what is read.
QList<QPoint> PlacesOver(const QRect &caller, const QList<QRect> &allRead, const QSize &window)
{
    const QPoint middle(caller.center().x() - window.width() / 2, caller.center().y() - window.height() / 2);
    QList<QPoint> places{middle};
    for (const QRect &read : allRead)
        places += {{read.left() - window.width(), middle.y()}, {middle.x(), read.top() - window.height()}};
    std::stable_sort(places.begin(), places.end(), [&](const QPoint &one, const QPoint &other) {
        return (one - middle).manhattanLength() < (other - middle).manhattanLength();
    });
    return places;
}

/// The first is the best where they are equally free and equally near.
QList<QPoint> Candidates(const QSize &window, const Surroundings &around, const QRect &screen)
{
    QList<QPoint> places;
    if (around.OverCaller)
        places += PlacesOver(around.Caller, around.Read, window);
    places += SidesOf(around.Caller, window);
    for (const QPoint &corner : {screen.topRight(), screen.bottomRight(), screen.topLeft(), screen.bottomLeft()})
        places += corner;
    const qsizetype besides = places.size();
    places += TouchingPlaces(window, around, screen);
    for (int step = 1; step <= MostSteps; ++step)
        for (qsizetype i = 0; i < besides; ++i)
            places += places[i] + QPoint(step * CascadeStep, step * CascadeStep);
    return places;
}

} // namespace

QPoint Placed(const QSize &window, const Surroundings &around)
{
    const QRect screen = ScreenOf(around.Caller, around.Screens);
    QList<QPoint> sides;
    for (const QPoint &side : SidesOf(around.Caller, window))
        sides += Within(screen, side, window);
    // What it covers of the field, of what is read and of the caller; what it covers of the other windows and how far
    // it is off the caller, where a way as long as the window is wide weighs as much as another window wholly covered;
    // and how far it is off the nearest of its caller's sides.
    using Cost = std::array<qint64, 5>;
    Cost least;
    least.fill(std::numeric_limits<qint64>::max());
    QPoint best;
    for (const QPoint &candidate : Candidates(window, around, screen)) {
        const QRect place(Within(screen, candidate, window), window);
        Cost cost{Area(place.intersected(around.Field))};
        for (const QRect &read : around.Read)
            cost[1] += Area(place.intersected(read));
        // What its caller covers already is no matter to a window that stands over the caller.
        for (const QRect &other : around.Others)
            cost[3] += Area(place.intersected(other)) -
                       (around.OverCaller ? Area(place.intersected(other).intersected(around.Caller)) : 0);
        if (!around.OverCaller) {
            cost[2] = Area(place.intersected(around.Caller));
            cost[3] += qint64(Gap(place, around.Caller)) * window.height();
            cost[4] = std::numeric_limits<qint64>::max();
            for (const QPoint &side : sides)
                cost[4] = qMin<qint64>(cost[4], (place.topLeft() - side).manhattanLength());
        }
        if (cost < least) {
            least = cost;
            best = place.topLeft();
        }
    }
    return best;
}
