#include "platform/controls/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QPainter>
#include <cmath>

namespace {

constexpr QRgb AccentOnLight = 0xff2e7d5b;
constexpr QRgb AccentOnDark = 0xff63b58f;
constexpr double AccentContrast = 3;
constexpr double TitlePanelRadius = 6;

double LinearLight(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor &colour)
{
    return 0.2126 * LinearLight(colour.redF()) + 0.7152 * LinearLight(colour.greenF()) +
           0.0722 * LinearLight(colour.blueF());
}

/// The colour as a screen shows it, with eight bits a channel, so that a contrast is measured on what is seen.
QColor WithLightness(const QColor &colour, int lightness)
{
    return QColor(QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), lightness).rgb());
}

/// Paints a title panel under its content. A style sheet would reach into every control of the panel.
class TitlePanelLook : public QObject
{
public:
    explicit TitlePanelLook(QWidget *panel) : QObject(panel), m_panel(panel)
    {
        panel->setAutoFillBackground(false);
        if (auto *frame = qobject_cast<QFrame *>(panel))
            frame->setFrameShape(QFrame::NoFrame);
        panel->installEventFilter(this);
        TakeColours();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != m_panel)
            return false;
        if (event->type() == QEvent::Paint)
            PaintBackground();
        else if (event->type() == QEvent::PaletteChange)
            TakeColours();
        return false;
    }

private:
    void TakeColours()
    {
        const QColor accent = AccentColour(QApplication::palette());
        QPalette palette = m_panel->palette();
        // Our own change of the palette comes back here as an event; this ends it.
        if (palette.color(QPalette::Window) == accent)
            return;
        palette.setColor(QPalette::Window, accent);
        palette.setColor(QPalette::WindowText, TextOn(accent));
        m_panel->setPalette(palette);
    }

    void PaintBackground()
    {
        QPainter painter(m_panel);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_panel->palette().color(QPalette::Window));
        painter.drawRoundedRect(m_panel->rect(), TitlePanelRadius, TitlePanelRadius);
    }

    QWidget *m_panel;
};

} // namespace

double Contrast(const QColor &one, const QColor &other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

bool IsDark(const QPalette &palette)
{
    return Luminance(palette.color(QPalette::Window)) < Luminance(palette.color(QPalette::WindowText));
}

QColor AccentColour(const QPalette &palette)
{
    return ReadableOn(QColor(IsDark(palette) ? AccentOnDark : AccentOnLight), palette.color(QPalette::Window),
                      AccentContrast);
}

QColor TextOn(const QColor &background)
{
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return Contrast(white, background) >= Contrast(black, background) ? white : black;
}

QColor ReadableOn(const QColor &pure, const QColor &background, double contrast)
{
    if (Contrast(pure, background) >= contrast)
        return pure;
    const int start = pure.lightness();
    for (int step = 1; step <= 255; ++step) {
        for (const int lightness : {start - step, start + step}) {
            if (lightness < 0 || lightness > 255)
                continue;
            const QColor shade = WithLightness(pure, lightness);
            if (Contrast(shade, background) >= contrast)
                return shade;
        }
    }
    return TextOn(background);
}

QColor QBColor(int index, const QColor &background, const QColor &text)
{
    switch (index) {
    case 9: return ReadableOn(QColor(0, 0, 255), background);
    case 12: return ReadableOn(QColor(255, 0, 0), background);
    default: return text;
    }
}

void StyleTitlePanel(QWidget *panel)
{
    new TitlePanelLook(panel);
}
