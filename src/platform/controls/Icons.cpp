#include "platform/controls/Icons.h"

#include "platform/controls/Theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

// A static library's resources are left out unless something asks for them. This has to stand outside any namespace.
static void KeepIconFiles()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

QString IconFile(const QString &name)
{
    return u":/icons/%1.svg"_s.arg(name);
}

/// What the three placeholder colours of a drawing become.
struct IconColours {
    QColor Ink;    ///< #000001: lines
    QColor Accent; ///< #000002
    QColor Paper;  ///< #000003: what lies on a filled accent
};

IconColours ColoursFor(QIcon::Mode mode)
{
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Disabled) {
        const QColor faint = palette.color(QPalette::Disabled, QPalette::ButtonText);
        return {faint, faint, palette.color(QPalette::Disabled, QPalette::Window)};
    }
    if (mode == QIcon::Selected) {
        const QColor text = palette.color(QPalette::HighlightedText);
        return {text, text, palette.color(QPalette::Highlight)};
    }
    const QColor accent = AccentColour(palette);
    return {palette.color(QPalette::ButtonText), accent, TextOn(accent)};
}

/// Draws its SVG on demand and keeps the pictures in the application's pixmap cache.
class ThemedIconEngine : public QIconEngine
{
public:
    explicit ThemedIconEngine(const QString &name) : m_name(name) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double scale = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
        picture.setDevicePixelRatio(scale);
        painter->drawPixmap(rect, picture);
    }

    /// `size` is in device pixels.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        if (size.isEmpty())
            return {};
        const IconColours colours = ColoursFor(mode);
        const QString cacheKey = u"icon/%1/%2x%3/%4%5%6"_s.arg(m_name)
                                     .arg(size.width())
                                     .arg(size.height())
                                     .arg(colours.Ink.name(), colours.Accent.name(), colours.Paper.name());
        QPixmap picture;
        if (!QPixmapCache::find(cacheKey, &picture)) {
            picture = Draw(size, colours);
            QPixmapCache::insert(cacheKey, picture);
        }
        return picture;
    }

    QIconEngine *clone() const override { return new ThemedIconEngine(m_name); }
    QString key() const override { return u"ThemedIcon"_s; }
    QString iconName() override { return m_name; }

private:
    QPixmap Draw(const QSize &size, const IconColours &colours) const
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QFile file(IconFile(m_name));
        if (!file.open(QIODevice::ReadOnly))
            return picture;
        QByteArray drawing = file.readAll();
        drawing.replace("#000001", colours.Ink.name().toLatin1());
        drawing.replace("#000002", colours.Accent.name().toLatin1());
        drawing.replace("#000003", colours.Paper.name().toLatin1());
        QSvgRenderer renderer(drawing);
        // Drawings are square; one that is asked for in another shape stands in the middle.
        const int side = qMin(size.width(), size.height());
        const QRect square((size.width() - side) / 2, (size.height() - side) / 2, side, side);
        QPainter painter(&picture);
        renderer.render(&painter, square);
        return picture;
    }

    QString m_name;
};

} // namespace

QIcon ThemedIcon(const QString &name)
{
    KeepIconFiles();
    return QFile::exists(IconFile(name)) ? QIcon(new ThemedIconEngine(name)) : QIcon();
}
