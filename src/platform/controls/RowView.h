// What lists and grids have in common: which row counts as chosen, and what is a click on it.
//
// The mark is the row that the keys stand on. It begins on the first row, moves with the arrow keys and selects
// nothing. A row is selected by its click alone: the release of the left button on it, or Enter or Space once the user
// has moved the mark or clicked. So a key that was meant for the window before, or is held down, picks nothing.
#pragma once

#include "platform/windows/Form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <optional>
#include <utility>

template <class View>
class RowView : public View
{
public:
    using View::View;

protected:
    /// Selects the row and raises its click.
    virtual void ClickRow(int row) = 0;
    virtual void DoubleClickRow() {}
    /// The user's key has moved the mark.
    virtual void MarkMoved(int row) { Q_UNUSED(row) }
    /// The user comes to the window, for the first time or again.
    virtual void Arrived() { ForgetChoice(); }
    /// Whether the rows change when the user comes to the window again: the press that brings him was meant for others.
    virtual bool FillsOnArrival() const { return false; }
    /// Whether the user has moved the mark or clicked.
    bool HasChosen() const { return m_chosen; }

    /// No row counts as chosen, and the mark begins anew.
    void ForgetChoice()
    {
        SetChosen(false);
        MoveMark({});
        ShowMark();
    }
    /// While it has the focus, a view that has rows has a mark.
    void ShowMark()
    {
        if (this->hasFocus())
            BeginMark();
    }
    void MoveMark(const QModelIndex &row)
    {
        this->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    }

    /// The mark is seen on the whole row, and the toolkit would draw one of its cells anew.
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        View::currentChanged(current, previous);
        this->viewport()->update();
    }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &, const QEvent *) const override
    {
        return QItemSelectionModel::NoUpdate;
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        BeginMark();
        // A blank belongs to a text that the user is typing to search for.
        if (IsClick(*event) && !(event->key() == Qt::Key_Space && !m_searching.hasExpired())) {
            if (m_chosen && !event->isAutoRepeat() && IsEnabled(this->currentIndex())) {
                ClickRow(this->currentIndex().row());
                if (event->modifiers() & Qt::ControlModifier)
                    DoubleClickRow();
            }
            return;
        }
        const QModelIndex before = this->currentIndex();
        View::keyPressEvent(event);
        SetChosen(m_chosen || MovesTheMark(event->key()));
        if (this->currentIndex() != before)
            MarkMoved(this->currentIndex().row());
    }
    void keyboardSearch(const QString &text) override
    {
        const QModelIndex before = this->currentIndex();
        View::keyboardSearch(text);
        m_searching.setRemainingTime(QApplication::keyboardInputInterval());
        const QModelIndex found = this->currentIndex();
        SetChosen(m_chosen || found != before || found.data().toString().startsWith(text, Qt::CaseInsensitive));
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        m_clicked.reset();
        if (FillsOnArrival() && !m_arrival.hasExpired())
            return;
        m_pressed = RowAt(*event, event->button());
        if (m_pressed.isValid())
            MoveMark(m_pressed);
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        const QModelIndex row = RowAt(*event, Qt::LeftButton);
        if (!m_pressed.isValid() || !row.isValid())
            return;
        m_pressed = row;
        MoveMark(row);
    }
    /// The mark has followed the mouse, so the row where it is released counts and not the one where it was pressed.
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton || !m_pressed.isValid())
            return;
        m_clicked = std::exchange(m_pressed, {});
        SetChosen(true);
        ClickRow(m_clicked->row());
    }
    void mouseDoubleClickEvent(QMouseEvent *event) override
    {
        const bool rowIsGone = m_clicked && !m_clicked->isValid(); // the first click has filled the view anew
        if (event->button() != Qt::LeftButton || rowIsGone)
            return;
        const QModelIndex row = RowAt(*event, Qt::LeftButton);
        if (row.isValid() && m_clicked && row.row() == m_clicked->row())
            DoubleClickRow();
        else
            mousePressEvent(event); // the second of two quick clicks on different rows
    }

    void showEvent(QShowEvent *event) override
    {
        View::showEvent(event);
        if (auto *form = qobject_cast<Form *>(this->window()); form && form != m_form) {
            m_form = form;
            QObject::connect(form, &Form::Arrives, this, [this] {
                if (std::exchange(m_seen, true))
                    m_arrival.setRemainingTime(ArrivalMilliseconds);
                Arrived();
            });
        }
    }
    void hideEvent(QHideEvent *event) override
    {
        View::hideEvent(event);
        m_seen = false;
    }

private:
    void SetChosen(bool chosen)
    {
        if (std::exchange(m_chosen, chosen) != chosen)
            this->viewport()->update(); // the mark looks otherwise
    }
    /// The mark begins on the first row that can be chosen. The view stays where it is scrolled to.
    void BeginMark()
    {
        if (this->currentIndex().isValid())
            return;
        int row = 0;
        while (row < this->model()->rowCount() && !IsEnabled(this->model()->index(row, 0)))
            ++row;
        const bool scrolls = this->hasAutoScroll();
        this->setAutoScroll(false);
        MoveMark(this->model()->index(row, 0));
        this->setAutoScroll(scrolls);
    }
    static bool IsClick(const QKeyEvent &event)
    {
        const int key = event.key();
        return key == Qt::Key_Return || key == Qt::Key_Enter ||
               (key == Qt::Key_Space && event.modifiers() == Qt::NoModifier);
    }
    static bool MovesTheMark(int key)
    {
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
               key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    }
    static bool IsEnabled(const QModelIndex &row) { return row.isValid() && (row.flags() & Qt::ItemIsEnabled); }
    QModelIndex RowAt(const QMouseEvent &event, Qt::MouseButton button) const
    {
        const QModelIndex row = this->indexAt(event.position().toPoint());
        return button == Qt::LeftButton && IsEnabled(row) ? row : QModelIndex();
    }

    static constexpr int ArrivalMilliseconds = 200; // no second press of a hand comes as soon

    bool m_chosen = false;
    bool m_seen = false;                            // the user has been here since the view was shown
    QDeadlineTimer m_arrival;                       // until then a press is the one that has brought the user back
    QDeadlineTimer m_searching;                     // until then a blank goes on with the text that is searched for
    QPersistentModelIndex m_pressed;                // the row that the button is held down on
    std::optional<QPersistentModelIndex> m_clicked; // the row that the mouse has clicked last
    QPointer<Form> m_form;
};
