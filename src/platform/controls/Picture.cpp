#include "platform/controls/Picture.h"

#include <QPainter>

Picture::Picture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Picture::Show(const QIcon &icon)
{
    m_icon = icon;
    update();
}

void Picture::SetSide(int side)
{
    m_side = side;
    updateGeometry();
}

void Picture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}
