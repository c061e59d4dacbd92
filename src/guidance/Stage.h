// A panel on which pieces stand and move. Its pieces are placed in twips of a stage of 8,700 by 5,600, which is as
// large as the panel, so that they keep their places at every size.
#pragma once

#include <QHash>
#include <QWidget>
#include <functional>

class QAbstractAnimation;
class QChildEvent;

class Stage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    static constexpr QSizeF Twips{8700, 5600};
    static constexpr int GlideTime = 700; ///< milliseconds of a glide, well within the second of a tick

    /// Puts a piece at a place and gives it that size.
    void Place(QWidget *piece, const QRectF &place);
    /// The same; all texts are of one width, and a text takes the height of its lines.
    void PlaceText(QWidget *piece, const QPointF &topLeft);
    /// Moves a piece that has been placed, on the event loop, and then goes on. One that is still moving arrives first.
    /// Nothing happens any more once the stage is gone.
    void Glide(QWidget *piece, const QPointF &from, const QPointF &to, const std::function<void()> &then = {});
    /// Where the piece stands at the moment, top left.
    QPointF PlaceOf(QWidget *piece) const { return m_places.value(piece).topLeft(); }
    /// What a layout of the stage leaves free at its left, for the teacher.
    void LeaveFreeAtLeft(double twips);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    void Put(QWidget *piece);
    void PutAll();
    void Arrive(QWidget *piece);

    QHash<QWidget *, QRectF> m_places; ///< of a text: without height
    QHash<QWidget *, QAbstractAnimation *> m_glides;
    double m_freeAtLeft = 0;
};
