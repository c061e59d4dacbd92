#include "shopping/Shelf.h"

#include "platform/controls/Icons.h"
#include "platform/controls/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionFocusRect>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CartSide = 96; // pixels
constexpr int DragSide = 40;
constexpr int FrameWidth = 2;
constexpr int FrameRadius = 8;

} // namespace

ShelfItem::ShelfItem(Shelf *from) : m_from(from)
{
    setData(u"application/x-tallymere-shelf-item"_s, {});
}

QString Shelf::SelectedText() const
{
    const int row = ListIndex();
    return row < 0 ? QString() : item(row)->text();
}

/// Makes the row the selected one. Returns whether it is a row.
bool Shelf::TakeInHand(const QModelIndex &row)
{
    if (!row.isValid())
        return false;
    if (row.row() != ListIndex())
        ClickRow(row.row());
    return true;
}

/// The row that a key means: the mark, once the user has set it, else the selected row.
QModelIndex Shelf::RowOfKeys() const
{
    return HasChosen() ? currentIndex() : model()->index(ListIndex(), 0);
}

void Shelf::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Insert || event->modifiers() != Qt::NoModifier)
        ListBox::keyPressEvent(event);
    else if (!event->isAutoRepeat() && TakeInHand(RowOfKeys()))
        Q_EMIT PutInCart();
}

void Shelf::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QPersistentModelIndex row = byMouse ? indexAt(event->pos()) : RowOfKeys();
    if (TakeInHand(row))
        Q_EMIT MenuWanted(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(row).bottomLeft()));
}

void Shelf::mousePressEvent(QMouseEvent *event)
{
    ListBox::mousePressEvent(event);
    m_heldAt = event->position().toPoint();
    m_held = event->button() == Qt::LeftButton ? indexAt(m_heldAt) : QModelIndex();
}

void Shelf::mouseMoveEvent(QMouseEvent *event)
{
    // The mark does not follow the mouse as in other lists: what moves is the item.
    const int distance = (event->position().toPoint() - m_heldAt).manhattanLength();
    const bool held = m_held.isValid() && event->buttons() & Qt::LeftButton;
    if (!held || distance < QApplication::startDragDistance())
        return;
    if (TakeInHand(std::exchange(m_held, {})))
        Drag();
}

void Shelf::mouseReleaseEvent(QMouseEvent *event)
{
    if (std::exchange(m_held, {}).isValid()) // else the press has become a drag, which is no click
        ListBox::mouseReleaseEvent(event);
}

/// Who clicks an item and at once drags it presses twice in a short time.
void Shelf::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void Shelf::Drag()
{
    auto *drag = new QDrag(this); // which the toolkit deletes
    drag->setMimeData(new ShelfItem(this));
    drag->setPixmap(ThemedIcon(u"shelf-item"_s).pixmap(DragSide));
    drag->setHotSpot({DragSide / 2, DragSide / 2});
    m_taken = false;
    const QPointer<Shelf> alive = this; // a drag runs an event loop of its own
    RunDrag(*drag);
    if (alive && std::exchange(m_taken, false))
        Q_EMIT PutInCart();
}

Cart::Cart(QWidget *parent) : QPushButton(parent)
{
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Cart::sizeHint() const
{
    return {CartSide, CartSide};
}

void Cart::SetTaking(bool taking)
{
    if (std::exchange(m_taking, taking) != taking)
        update();
}

/// Only what comes from the shelf of this window.
void Cart::dragEnterEvent(QDragEnterEvent *event)
{
    const auto *item = qobject_cast<const ShelfItem *>(event->mimeData());
    if (!item || !item->From() || item->From()->window() != window())
        return;
    event->acceptProposedAction();
    SetTaking(true);
}

void Cart::dragLeaveEvent(QDragLeaveEvent *)
{
    SetTaking(false);
}

void Cart::dropEvent(QDropEvent *event)
{
    SetTaking(false);
    const auto *item = qobject_cast<const ShelfItem *>(event->mimeData());
    if (!item || !item->From())
        return;
    item->From()->TakenByCart();
    event->acceptProposedAction();
}

void Cart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_taking) {
        painter.setPen(QPen(AccentColour(palette()), FrameWidth));
        const QRect frame = rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
        painter.drawRoundedRect(frame, FrameRadius, FrameRadius);
    }
    const int margin = 2 * FrameWidth;
    ThemedIcon(m_taking ? u"cart-taking"_s : u"cart"_s)
        .paint(&painter, rect().adjusted(margin, margin, -margin, -margin), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}
