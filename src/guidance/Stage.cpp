#include "guidance/Stage.h"

#include <QChildEvent>
#include <QLayout>
#include <QPointer>
#include <QVariantAnimation>

namespace {

constexpr double TextWidth = 5500; // twips
constexpr int Letters = 98;        // of the least width
constexpr int Lines = 28;          // of the least height

} // namespace

void Stage::Place(QWidget *piece, const QRectF &place)
{
    m_places[piece] = place;
    Put(piece);
}

void Stage::PlaceText(QWidget *piece, const QPointF &topLeft)
{
    Place(piece, {topLeft, QSizeF(TextWidth, 0)});
}

void Stage::Glide(QWidget *piece, const QPointF &from, const QPointF &to, const std::function<void()> &then)
{
    Arrive(piece);
    auto *glide = new QVariantAnimation(this);
    m_glides[piece] = glide;
    glide->setDuration(GlideTime);
    glide->setEasingCurve(QEasingCurve::InOutQuad);
    glide->setStartValue(from);
    glide->setEndValue(to);
    const auto move = [this, piece](const QPointF &place) {
        m_places[piece].moveTopLeft(place);
        Put(piece);
    };
    connect(glide, &QVariantAnimation::valueChanged, this, [move](const QVariant &place) { move(place.toPointF()); });
    connect(glide, &QVariantAnimation::finished, this, [=, this] {
        m_glides.remove(piece);
        if (then)
            then();
    });
    move(from);
    glide->start(QAbstractAnimation::DeleteWhenStopped);
}

void Stage::LeaveFreeAtLeft(double twips)
{
    m_freeAtLeft = twips;
    PutAll();
}

QSize Stage::minimumSizeHint() const
{
    const QSize letters(fontMetrics().averageCharWidth() * Letters, fontMetrics().height() * Lines);
    QSize least = QWidget::minimumSizeHint().expandedTo(letters);
    if (layout() && layout()->hasHeightForWidth())
        least.setHeight(qMax(least.height(), layout()->totalMinimumHeightForWidth(least.width())));
    return least;
}

void Stage::resizeEvent(QResizeEvent *)
{
    PutAll();
}

void Stage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        PutAll();
}

/// A piece that goes to another stage is no longer this one's.
void Stage::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    if (!event->removed())
        return;
    const QObject *gone = event->child(); // compared as an address: it may be at its end, and need not be a piece
    m_places.removeIf([gone](const auto &place) { return place.key() == gone; });
    m_glides.removeIf([gone](const auto &glide) {
        if (glide.key() != gone)
            return false;
        delete glide.value();
        return true;
    });
}

void Stage::Put(QWidget *piece)
{
    const double across = width() / Twips.width();
    const double down = height() / Twips.height();
    const QRectF place = m_places[piece];
    const QSize size(qRound(place.width() * across), qRound(place.height() * down));
    const int lines = place.height() > 0 ? 0 : piece->heightForWidth(size.width());
    piece->setGeometry(qRound(place.x() * across), qRound(place.y() * down), size.width(), qMax(size.height(), lines));
}

void Stage::PutAll()
{
    for (auto piece = m_places.cbegin(); piece != m_places.cend(); ++piece)
        Put(piece.key());
    if (layout() && m_freeAtLeft > 0) {
        QMargins margins = layout()->contentsMargins();
        margins.setLeft(qRound(m_freeAtLeft * width() / Twips.width()));
        layout()->setContentsMargins(margins);
    }
}

/// A piece that is still on its way arrives now.
void Stage::Arrive(QWidget *piece)
{
    if (QAbstractAnimation *glide = m_glides.value(piece))
        glide->setCurrentTime(glide->totalDuration());
}
