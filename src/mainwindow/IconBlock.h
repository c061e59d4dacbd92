// The block of toolbar buttons: its icons grow with the window, and shrink on a small screen.
#pragma once

#include <QFrame>
#include <QToolButton>

class IconBlock : public QFrame
{
public:
    explicit IconBlock(QWidget *parent = nullptr) : QFrame(parent) {}

    /// Room for icons of the usual size; the layout's own wish follows the icons that are shown at present.
    QSize sizeHint() const override { return QSize(UsualSide, UsualSide); }

protected:
    bool event(QEvent *event) override
    {
        const bool done = QFrame::event(event);
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
            FitIcons();
        return done;
    }

private:
    static constexpr int UsualSide = 312; // four buttons of 72 pixels and the gaps
    static constexpr int LeastIcon = 24;
    static constexpr int LargestIcon = 128;

    void FitIcons()
    {
        const QList<QToolButton *> buttons = findChildren<QToolButton *>();
        int side = 2 * LargestIcon;
        for (const QToolButton *button : buttons) // one may be a pixel larger than another
            side = qMin(side, qMin(button->width(), button->height()));
        side = qBound(LeastIcon, side * 2 / 3, LargestIcon);
        for (QToolButton *button : buttons)
            button->setIconSize({side, side});
    }
};
