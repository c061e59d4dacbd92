// The items of a store, and the cart that they are put into: by dragging one from the shelf to the cart, by the Ins
// key, by the shelf's menu, or by Enter on the cart. All of them end in one signal.
#pragma once

#include "platform/controls/ListBox.h"

#include <QDrag>
#include <QMimeData>
#include <QPushButton>

class Shelf;

/// What an item of a shelf is dragged as: a kind of its own, with no text that a field or another program would take.
class ShelfItem : public QMimeData
{
    Q_OBJECT
public:
    explicit ShelfItem(Shelf *from);
    Shelf *From() const { return m_from; }

private:
    QPointer<Shelf> m_from;
};

/// A list whose rows can be dragged. An item that is dragged, or asked for by key or menu, is the selected one: another
/// row is clicked first, while the selected one is not clicked again, so that its fields keep what the user has typed.
class Shelf : public ListBox
{
    Q_OBJECT
public:
    using ListBox::ListBox;

    /// How a drag runs until it is dropped somewhere. A test's desktop has none and puts its own here.
    static inline std::function<void(QDrag &)> RunDrag = [](QDrag &drag) { drag.exec(Qt::CopyAction); };

    /// The cart has taken what is being dragged.
    void TakenByCart() { m_taken = true; }
    QString SelectedText() const;

Q_SIGNALS:
    /// The selected item is to go into the cart. A drag is over by then.
    void PutInCart();
    /// A menu for the selected item is wanted at this place of the screen.
    void MenuWanted(const QPoint &place);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    bool TakeInHand(const QModelIndex &row);
    QModelIndex RowOfKeys() const;
    void Drag();

    QPersistentModelIndex m_held; ///< the row that the button is held down on, until it is dragged
    QPoint m_heldAt;
    bool m_taken = false;
};

/// The picture of a shopping cart that takes items of the shelf, and shows so while one is held over it.
class Cart : public QPushButton
{
    Q_OBJECT
public:
    explicit Cart(QWidget *parent = nullptr);

    /// Whether an item is held over it.
    bool IsTaking() const { return m_taking; }
    QSize sizeHint() const override;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void SetTaking(bool taking);

    bool m_taking = false;
};
