#include "platform/controls/ClearEdges.h"

#include "platform/controls/Theme.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double EdgeContrast = 3.5; // 3, and a little for round edges, which are blended
constexpr double Radius = 2;

/// An edge is seen against the window outside and the field inside.
QColor EdgeColour(const QPalette &palette, QPalette::ColorRole pure)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    return ReadableOn(palette.color(QPalette::Active, pure), window.lightness() > base.lightness() ? window : base,
                      EdgeContrast);
}

void DrawEdge(QPainter *painter, const QRect &rect, const QColor &colour, double radius = Radius)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(colour);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->restore();
}

} // namespace

ClearEdges::ClearEdges(const QString &name) : QProxyStyle(name), m_darkens(baseStyle()->inherits("QFusionStyle")) {}

void ClearEdges::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!m_darkens)
        return;
    const bool dark = IsDark(option->palette);
    const bool focused = option->state & State_HasFocus;
    // A list shows by its frame that it has the focus, since it may have no marked row.
    const bool focusedList = focused && element == PE_Frame && qobject_cast<const QAbstractScrollArea *>(widget);
    if (!dark && !focusedList)
        return;
    const QColor edge = EdgeColour(option->palette, focused ? QPalette::Highlight : QPalette::Mid);
    switch (element) {
    case PE_Frame:
    case PE_FrameLineEdit:
    case PE_PanelButtonCommand:
    case PE_IndicatorCheckBox: DrawEdge(painter, option->rect, edge, element == PE_Frame ? 0 : Radius); break;
    case PE_IndicatorRadioButton: {
        const QRect circle(option->rect.topLeft(), QSize(1, 1) * qMin(option->rect.width(), option->rect.height()));
        DrawEdge(painter, circle, edge, circle.width() / 2.0);
        break;
    }
    default: break;
    }
}

void ClearEdges::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                    const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto *group = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (!m_darkens || control != CC_GroupBox || !group || !(group->subControls & SC_GroupBoxFrame) ||
        (group->features & QStyleOptionFrame::Flat) || !IsDark(option->palette))
        return;
    QRect frame = option->rect; // the title stands above the frame
    frame.setTop(proxy()->subControlRect(CC_GroupBox, option, SC_GroupBoxContents, widget).top());
    DrawEdge(painter, frame, EdgeColour(option->palette, QPalette::Mid));
}
