// The desktop's own style, and on a dark desktop clear edges. Where the toolkit's default style serves, it makes edges
// by darkening the window's colour, which on a dark window leaves nothing to be seen. Here the edges of fields, frames,
// options and buttons are drawn once more, light enough, in the same place. A style that a desktop brings along keeps
// its edges.
#pragma once

#include <QProxyStyle>

class ClearEdges : public QProxyStyle
{
    Q_OBJECT
public:
    /// The style of that name, else the desktop's.
    explicit ClearEdges(const QString &name = {});

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    bool m_darkens; ///< it is the toolkit's default style
};
