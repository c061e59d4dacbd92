// A list whose click opens, picks or moves on: the arrow keys only move the mark, and Enter or Space is the click
// (RowView.h). The selected row is the one that was clicked last; filling the list or moving the focus into it selects
// nothing. Ctrl+Enter is a double-click. A list that sorts (its property sortingEnabled) ignores case.
#pragma once

#include "platform/controls/RowView.h"

#include <QListWidget>

class ListBox : public RowView<QListWidget>
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *parent = nullptr);

    /// Position from 0 of the selected row, -1 for none.
    int ListIndex() const;
    /// Selects a row as a click does; the row that is selected already raises nothing. -1 clears the selection.
    void SetListIndex(int row);
    /// Empties the list; the position is -1 then, without an event.
    void Clear();
    void AddItem(const QString &text);
    QStringList Items() const;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Also for a click on the row that is selected already.
    void Click();
    void DoubleClick();

protected:
    void ClickRow(int row) override;
    void DoubleClickRow() override;

private:
    void Select(int row);
};
