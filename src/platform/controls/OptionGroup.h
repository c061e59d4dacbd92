// Option buttons that belong together, numbered from 0. At most one is selected; code may also clear them all, which
// the toolkit's exclusive buttons do not offer.
#pragma once

#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>
#include <functional>

class OptionGroup : public QButtonGroup
{
public:
    /// click is told of an option that becomes selected, by the user or by code; never of one that stays selected.
    OptionGroup(const QList<QRadioButton *> &options, const std::function<void(int)> &click)
    {
        for (int index = 0; index < options.size(); ++index) {
            addButton(options[index], index);
            options[index]->installEventFilter(this);
        }
        connect(this, &QButtonGroup::idToggled, this, [this, click](int index, bool on) {
            if (!on)
                return;
            button(index)->update(); // else its mark would come only after whatever window the click shows
            SetTabStop(index);
            click(index);
        });
    }

    /// The selected option, -1 if there is none.
    int Selected() const { return checkedId(); }

    /// Selects an option; -1 clears them all.
    void Select(int index)
    {
        if (QAbstractButton *option = button(index)) {
            option->setChecked(true);
            return;
        }
        setExclusive(false);
        for (QAbstractButton *option : buttons())
            option->setChecked(false);
        setExclusive(true);
        SetTabStop(-1);
    }

protected:
    /// The arrow keys move the focus first and select then. The toolkit does it the other way round and would take the
    /// focus away from where the click has put it.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *option = qobject_cast<QAbstractButton *>(watched);
        if (event->type() != QEvent::KeyPress || !option)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool forward = key == Qt::Key_Down || key == Qt::Key_Right;
        if (!forward && key != Qt::Key_Up && key != Qt::Key_Left)
            return false;
        const int count = int(buttons().size());
        QAbstractButton *next = button((id(option) + (forward ? 1 : count - 1)) % count);
        next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        next->setChecked(true);
        return true;
    }

private:
    /// The tab key comes to the selected option; where none is selected, to the first.
    void SetTabStop(int index)
    {
        for (QAbstractButton *option : buttons())
            option->setFocusPolicy(index < 0 || id(option) == index ? Qt::StrongFocus : Qt::ClickFocus);
    }
};
