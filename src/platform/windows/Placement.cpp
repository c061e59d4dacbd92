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

/// The first is the best where they are equally free.
QList<QPoint> Candidates(const QSize &window, const Surroundings &around, const QRect &screen)
{
    const QRect &caller = around.Caller;
    QList<QPoint> places;
    if (around.OverCaller)
        places += {caller.center().x() - window.width() / 2, caller.center().y() - window.height() / 2};
    places += {caller.right() + 1, caller.top()};
    places += {caller.left() - window.width(), caller.top()};
    places += {caller.left(), caller.bottom() + 1};
    places += {caller.left(), caller.top() - window.height()};
    for (const QPoint &corner : {screen.topRight(), screen.bottomRight(), screen.topLeft(), screen.bottomLeft()})
        places += corner;
    const qsizetype besides = places.size();
    for (int step = 1; step <= MostSteps; ++step)
        for (qsizetype i = 0; i < besides; ++i)
            places += places[i] + QPoint(step * CascadeStep, step * CascadeStep);
    return places;
}

} // namespace

QPoint Placed(const QSize &window, const Surroundings &around)
{
    const QRect screen = ScreenOf(around.Caller, around.Screens);
    std::array<qint64, 3> least;
    least.fill(std::numeric_limits<qint64>::max());
    QPoint best;
    for (const QPoint &candidate : Candidates(window, around, screen)) {
        const QRect place(Within(screen, candidate, window), window);
        std::array<qint64, 3> covered{Area(place.intersected(around.Field)),
                                      around.OverCaller ? 0 : Area(place.intersected(around.Caller)), 0};
        // What its caller covers already is no matter to a window that stands over the caller.
        for (const QRect &other : around.Others)
            covered[2] += Area(place.intersected(other)) -
                          (around.OverCaller ? Area(place.intersected(other).intersected(around.Caller)) : 0);
        if (covered < least) {
            least = covered;
            best = place.topLeft();
        }
    }
    return best;
}
