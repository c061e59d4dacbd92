// A drop-down list that selects nothing by itself: it starts without a selection, and filling it leaves that so.
#pragma once

#include <QComboBox>

class DropDownList : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool sorted READ IsSorted WRITE SetSorted)
public:
    explicit DropDownList(QWidget *parent = nullptr);

    /// Position from 0 of the selected row, -1 for none.
    int ListIndex() const { return currentIndex(); }
    /// Selects a row as a pick does; the row that is selected already raises nothing. -1 clears the selection.
    void SetListIndex(int row);
    /// Empties the list; the position is -1 then, without an event.
    void Clear();
    /// Keeps the selection, and the text that stands in an editable list.
    void AddItem(const QString &text);
    QStringList Items() const;

    /// Whether items go to their place in the alphabet, upper and lower case alike, and not to the end.
    bool IsSorted() const { return m_sorted; }
    void SetSorted(bool sorted) { m_sorted = sorted; }

Q_SIGNALS:
    /// The user picks a row, or code selects another one. `changed` is false where the user picks the selected row
    /// again.
    void Click(bool changed);

protected:
    /// A wheel that scrolls the window picks nothing on its way.
    void wheelEvent(QWheelEvent *event) override;

private:
    int m_clicked = -1; ///< the position that the last click has left
    bool m_sorted = false;
};
