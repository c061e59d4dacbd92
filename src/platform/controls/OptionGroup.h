// Option buttons that belong together, numbered from 0. At most one is selected; code may also clear them all, which
// the toolkit's exclusive buttons do not offer.
#pragma once

#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>
#include <functional>
#include <optional>
#include <utility>

class OptionGroup : public QButtonGroup
{
public:
    /// click is called for an option that becomes selected, by the user or by code; never for one that stays so.
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
    /// The arrow keys move the focus to the next option that can be chosen, and select it then. The toolkit does it the
    /// other way round and would take the focus away from where the click has put it.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *option = qobject_cast<QAbstractButton *>(watched);
        if (event->type() != QEvent::KeyPress || !option)
            return false;
        const auto &press = *static_cast<QKeyEvent *>(event);
        const bool forward = press.key() == Qt::Key_Down || press.key() == Qt::Key_Right;
        const bool backward = press.key() == Qt::Key_Up || press.key() == Qt::Key_Left;
        if (!forward && !backward)
            return false;
        if (press.modifiers() & ~Qt::KeypadModifier) { // nor is Alt+Left the toolkit's: it is the window's
            event->ignore();
            return true;
        }
        const int count = int(buttons().size());
        QAbstractButton *next = option;
        do
            next = button((id(next) + (forward ? 1 : count - 1)) % count);
        while (next != option && (!next->isEnabled() || !next->isVisibleTo(next->parentWidget())));
        if (next != option) {
            next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            next->setChecked(true);
        }
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

/// Options of which each stands for a value.
template <class Value>
class ValueOptions
{
public:
    using Option = std::pair<QRadioButton *, Value>;

    /// click is called with the value of an option that becomes selected, by the user or by code.
    ValueOptions(const QList<Option> &options, const std::function<void(Value)> &click)
        : m_values(Parts(options, &Option::second)),
          m_group(Parts(options, &Option::first), [this, click](int index) { click(m_values[index]); })
    {
    }

    /// Nothing where no option is selected.
    std::optional<Value> Selected() const
    {
        return m_group.Selected() < 0 ? std::nullopt : std::optional<Value>(m_values[m_group.Selected()]);
    }
    /// A value that no option stands for clears them all.
    void Select(const Value &value) { m_group.Select(int(m_values.indexOf(value))); }

private:
    template <class Part>
    static QList<Part> Parts(const QList<Option> &options, Part Option::*part)
    {
        QList<Part> parts;
        for (const Option &option : options)
            parts += option.*part;
        return parts;
    }

    QList<Value> m_values;
    OptionGroup m_group;
};
