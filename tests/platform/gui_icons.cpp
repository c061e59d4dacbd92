// The icons and colours of our own, as they come out on a light and on a dark desktop.
#include "Palettes.h"
#include "TestProgram.h"
#include "platform/controls/Icons.h"
#include "platform/controls/Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

struct IconRow {
    const char *Name;
    bool HasInk;
    bool HasAccent;
};

constexpr IconRow ToolbarIcons[] = {
    {"projects", true, true},
    {"scan-pay-periods", true, true},
    {"average-net-percentage", true, true},
    {"wage-calculator", true, true},
    {"overhead", true, true},
    {"budget", true, true},
    {"savings-forecast", true, true},
    {"current-shopping-list", true, true},
    {"master-shopping-list", true, true},
    {"savings", true, true},
    {"loan-payments", true, true},
    {"loan-interest-rates", true, true},
    {"pay-off", true, true},
    {"set-current-pay-period", true, true},
    {"printer-setup", true, true},
    {"environment-settings", true, true},
};

constexpr IconRow OtherIcons[] = {
    {"exit", true, true},
    {"help", true, true},
    {"tutor", true, true},
    {"getting-started", true, true},
    {"tallymere", false, true}, // the program's own: a filled tile
    {"cart", true, true},
    {"cart-taking", true, true},
    {"shelf-item", true, true},
    {"creditors", true, true},
    {"regular-items", true, true},
    {"extra-items", true, true},
    {"math-calculator", true, true},
    {"open-store-list", true, true},
    {"print-current-list", true, true},
    {"search-for-help", true, true},
    {"tip-of-the-day", true, true},
    {"how-do-i", true, true},
    {"freeze", true, true},
};

QList<IconRow> AllIcons()
{
    QList<IconRow> all;
    for (const IconRow &row : ToolbarIcons)
        all << row;
    for (const IconRow &row : OtherIcons)
        all << row;
    return all;
}

QImage Picture(const QIcon &icon, int size, double scale = 1, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(size, size), scale, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The share of pixels that are more than half covered, in per cent.
int Coverage(const QImage &image)
{
    int covered = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            covered += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    return 100 * covered / (image.width() * image.height());
}

/// How steep the edges are, from point to point in a line.
double Sharpness(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            const double step = qAlpha(image.pixel(x, y)) - qAlpha(image.pixel(x - 1, y));
            sum += step * step;
        }
    }
    return sum;
}

bool Shows(const QImage &image, const QColor &colour)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour.rgb())
                return true;
    return false;
}

int DifferingPixels(const QImage &one, const QImage &other)
{
    int differing = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            differing += qAbs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))) > 127 ? 1 : 0;
    return differing;
}

QByteArray Drawing(const QString &name)
{
    QFile file(u":/icons/%1.svg"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class gui_icons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(u"Fusion"_s);
        m_startPalette = QApplication::palette();
    }

    void init() { QApplication::setPalette(LightPalette()); }
    void cleanupTestCase() { QApplication::setPalette(m_startPalette); }

    void EveryFileHasARowHere()
    {
        QVERIFY(!ThemedIcon(u"help"_s).isNull());
        QStringList expected;
        for (const IconRow &row : AllIcons())
            expected << QString::fromLatin1(row.Name) + u".svg"_s;
        expected.sort();
        QStringList found = QDir(u":/icons"_s).entryList(QDir::Files);
        found.sort();
        QCOMPARE(found, expected);
    }

    void AnUnknownNameIsANullIcon() { QVERIFY(ThemedIcon(u"no-such-icon"_s).isNull()); }

    void DrawingsAreOneFamily_data() { IconRows(); }
    void DrawingsAreOneFamily()
    {
        QFETCH(QString, name);
        QVERIFY(!ThemedIcon(name).isNull());
        const QString drawing = QString::fromUtf8(Drawing(name));
        QVERIFY(drawing.contains(u"viewBox=\"0 0 24 24\""_s));
        QVERIFY(drawing.contains(u"stroke-linecap=\"round\" stroke-linejoin=\"round\""_s));
        // A colour of its own would stay when the desktop turns dark.
        static const QRegularExpression colour(u"(?:fill|stroke)=\"([^\"]*)\""_s);
        const QStringList allowed = {u"none"_s, u"#000001"_s, u"#000002"_s, u"#000003"_s};
        int colours = 0;
        for (auto found = colour.globalMatch(drawing); found.hasNext(); ++colours) {
            const QString value = found.next().captured(1);
            QVERIFY2(allowed.contains(value), qPrintable(value));
        }
        QVERIFY(colours > 0);
    }

    void IsDrawnAtEverySize_data() { IconRows(); }
    void IsDrawnAtEverySize()
    {
        QFETCH(QString, name);
        const QIcon icon = ThemedIcon(name);
        for (const int size : {16, 24, 48}) {
            for (const double scale : {1.0, 1.5, 2.0}) {
                const QImage image = Picture(icon, size, scale);
                QCOMPARE(image.size(), (QSizeF(size, size) * scale).toSize());
                QCOMPARE(image.devicePixelRatio(), scale);
                const int coverage = Coverage(image);
                QVERIFY2(coverage >= 8 && coverage <= 85, qPrintable(QString::number(coverage)));
                QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            }
        }
    }

    void IsCrispAtEverySize_data() { IconRows(); }
    void IsCrispAtEverySize()
    {
        QFETCH(QString, name);
        const QIcon icon = ThemedIcon(name);
        for (const int size : {16, 20, 22, 24, 32, 48, 64, 96}) {
            for (const double scale : {1.0, 1.25, 2.0}) {
                const QImage drawn = Picture(icon, size, scale);
                QCOMPARE(drawn.size(), (QSizeF(size, size) * scale).toSize());
                // A button paints it point for point.
                QImage painted(drawn.size(), QImage::Format_ARGB32_Premultiplied);
                painted.setDevicePixelRatio(scale);
                painted.fill(Qt::transparent);
                QPainter painter(&painted);
                icon.paint(&painter, QRect(0, 0, size, size));
                painter.end();
                QCOMPARE(painted.convertToFormat(QImage::Format_ARGB32), drawn);
                // It is drawn for this size and not enlarged from a smaller picture, which has soft edges.
                if (drawn.width() < 24)
                    continue;
                const QImage enlarged = Picture(icon, drawn.width() / 2)
                                            .scaled(drawn.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                QVERIFY2(Sharpness(drawn) > 1.15 * Sharpness(enlarged), qPrintable(u"%1 at %2"_s.arg(size).arg(scale)));
            }
        }
    }

    void UsesTheColoursOfTheDesktop_data() { IconRows(); }
    void UsesTheColoursOfTheDesktop()
    {
        QFETCH(QString, name);
        QFETCH(bool, hasInk);
        QFETCH(bool, hasAccent);
        const QIcon icon = ThemedIcon(name); // one icon lives through all
        QPalette blueInk = LightPalette();
        blueInk.setColor(QPalette::ButtonText, QColor(u"#102a6b"_s));
        for (const QPalette &palette : {LightPalette(), blueInk, DarkPalette()}) {
            QApplication::setPalette(palette);
            const QImage image = Picture(icon, 48, 2);
            QCOMPARE(Shows(image, palette.color(QPalette::ButtonText)), hasInk);
            QCOMPARE(Shows(image, AccentColour(palette)), hasAccent);
        }
    }

    void DisabledIsGrey_data() { IconRows(); }
    void DisabledIsGrey()
    {
        QFETCH(QString, name);
        const QIcon icon = ThemedIcon(name);
        for (const QPalette &palette : {LightPalette(), DarkPalette()}) {
            QApplication::setPalette(palette);
            const QImage disabled = Picture(icon, 48, 2, QIcon::Disabled);
            QVERIFY(disabled != Picture(icon, 48, 2));
            QVERIFY(Shows(disabled, palette.color(QPalette::Disabled, QPalette::ButtonText)));
            QVERIFY(!Shows(disabled, AccentColour(palette)));
        }
    }

    void SelectedIsReadableOnTheHighlight()
    {
        const QImage selected = Picture(ThemedIcon(u"budget"_s), 48, 2, QIcon::Selected);
        QVERIFY(Shows(selected, LightPalette().color(QPalette::HighlightedText)));
        QVERIFY(!Shows(selected, AccentColour(LightPalette())));
    }

    void ToolbarIconsDifferAtTheSmallestSize()
    {
        for (const IconRow &one : ToolbarIcons) {
            for (const IconRow &other : ToolbarIcons) {
                if (&one == &other)
                    continue;
                const int differing = DifferingPixels(Picture(ThemedIcon(QString::fromLatin1(one.Name)), 16),
                                                      Picture(ThemedIcon(QString::fromLatin1(other.Name)), 16));
                QVERIFY2(differing >= 32, // an eighth of the picture
                         qPrintable(u"%1 and %2 differ in %3 pixels"_s
                                        .arg(QString::fromLatin1(one.Name), QString::fromLatin1(other.Name))
                                        .arg(differing)));
            }
        }
    }

    void IsPaintedInTheMiddleOfAnyRectangle()
    {
        QImage wide(QSize(96, 48), QImage::Format_ARGB32_Premultiplied);
        wide.fill(Qt::transparent);
        QPainter painter(&wide);
        ThemedIcon(u"help"_s).paint(&painter, wide.rect());
        painter.end();
        wide.convertTo(QImage::Format_ARGB32);
        QCOMPARE(wide.copy(24, 0, 48, 48), Picture(ThemedIcon(u"help"_s), 48));
        QCOMPARE(Coverage(wide.copy(0, 0, 24, 48)), 0);
    }

    void ContrastIsThatOfTheWeb_data()
    {
        QTest::addColumn<QColor>("one");
        QTest::addColumn<QColor>("other");
        QTest::addColumn<double>("contrast");
        QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
        QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
        QTest::newRow("a colour on itself") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
        QTest::newRow("red on white: 1.05 / (0.2126 + 0.05)") << QColor(Qt::red) << QColor(Qt::white) << 3.9985;
        QTest::newRow("blue on white: 1.05 / (0.0722 + 0.05)") << QColor(Qt::blue) << QColor(Qt::white) << 8.5925;
        QTest::newRow("red on black: (0.2126 + 0.05) / 0.05") << QColor(Qt::red) << QColor(Qt::black) << 5.252;
    }
    void ContrastIsThatOfTheWeb()
    {
        QFETCH(QColor, one);
        QFETCH(QColor, other);
        QFETCH(double, contrast);
        const double difference = qAbs(Contrast(one, other) - contrast);
        QVERIFY2(difference < 0.001, qPrintable(QString::number(Contrast(one, other))));
    }

    void GridColoursAreReadable_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QColor>("pure");
        QTest::addColumn<QColor>("background");
        for (const QPalette &palette : {LightPalette(), DarkPalette()}) {
            for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::Window}) {
                const QColor background = palette.color(role);
                QTest::addRow("credit on %s", qPrintable(background.name())) << 9 << QColor(Qt::blue) << background;
                QTest::addRow("deficit on %s", qPrintable(background.name())) << 12 << QColor(Qt::red) << background;
            }
        }
        for (const char *background : {"#000000", "#777777", "#808080", "#0000ff", "#ff0000", "#ffffe0"}) {
            QTest::addRow("credit on %s", background) << 9 << QColor(Qt::blue) << QColor(background);
            QTest::addRow("deficit on %s", background) << 12 << QColor(Qt::red) << QColor(background);
        }
    }
    void GridColoursAreReadable()
    {
        QFETCH(int, index);
        QFETCH(QColor, pure);
        QFETCH(QColor, background);
        const QColor colour = QBColor(index, background, QColor(Qt::green));
        QVERIFY(Contrast(colour, background) >= 4.5);
        if (Contrast(pure, background) >= 4.5)
            QCOMPARE(colour, pure);
        else if (colour.lightness() > 0 && colour.lightness() < 255) {
            QCOMPARE(colour.hslHue(), pure.hslHue());
            // Just enough: one step nearer to the pure colour is not readable yet.
            const int nearer = colour.lightness() + (colour.lightness() < pure.lightness() ? 1 : -1);
            QVERIFY(Contrast(QColor::fromHsl(pure.hslHue(), pure.hslSaturation(), nearer), background) < 4.5);
        }
    }

    void GridColoursByIndex()
    {
        const QColor white(Qt::white);
        const QColor text(u"#123456"_s);
        QCOMPARE(QBColor(9, white, text), QColor(0, 0, 255));
        QCOMPARE(QBColor(12, Qt::black, text), QColor(255, 0, 0));
        QCOMPARE(QBColor(0, white, text), text);
        // Pure red is too light for white paper, pure blue too dark for a dark one.
        QVERIFY(QBColor(12, white, text).lightness() < QColor(Qt::red).lightness());
        QVERIFY(QBColor(9, Qt::black, text).lightness() > QColor(Qt::blue).lightness());
    }

    void AnImpossibleContrastGivesTheNearestEnd()
    {
        // No colour reaches 15 to 1 on a middle grey.
        QCOMPARE(ReadableOn(Qt::red, QColor(u"#aaaaaa"_s), 15), QColor(Qt::black));
        QCOMPARE(ReadableOn(Qt::red, QColor(u"#555555"_s), 15), QColor(Qt::white));
    }

    void PalettesAreLightAndDark()
    {
        QVERIFY(!IsDark(LightPalette()));
        QVERIFY(IsDark(DarkPalette()));
    }

    void TextOfThePalettesIsReadable()
    {
        using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
        for (const QPalette &palette : {LightPalette(), DarkPalette()}) {
            for (const auto &[text, background] :
                 {Pair(QPalette::WindowText, QPalette::Window), Pair(QPalette::Text, QPalette::Base),
                  Pair(QPalette::Text, QPalette::AlternateBase), Pair(QPalette::ButtonText, QPalette::Button),
                  Pair(QPalette::HighlightedText, QPalette::Highlight), Pair(QPalette::Link, QPalette::Base),
                  Pair(QPalette::Link, QPalette::Window), Pair(QPalette::ToolTipText, QPalette::ToolTipBase)})
                QVERIFY(Contrast(palette.color(text), palette.color(background)) >= 4.5);
        }
    }

    void AccentStandsOutFromTheWindow_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << LightPalette();
        QTest::newRow("dark") << DarkPalette();
        QTest::newRow("plain white") << QPalette(QColor(Qt::white));
        QTest::newRow("plain black") << QPalette(QColor(Qt::black));
        QTest::newRow("the style's own") << m_startPalette;
    }
    void AccentStandsOutFromTheWindow()
    {
        QFETCH(QPalette, palette);
        const QColor accent = AccentColour(palette);
        QVERIFY(Contrast(accent, palette.color(QPalette::Window)) >= 3);
        QVERIFY(Contrast(accent, palette.color(QPalette::Button)) >= 3);
        QVERIFY(accent.green() > accent.red() && accent.green() > accent.blue());
        QVERIFY(Contrast(TextOn(accent), accent) >= 4.5);
    }

    void TitlePanelWearsTheAccent()
    {
        QWidget window;
        QFrame panel(&window);
        panel.setFrameShape(QFrame::Box);
        auto *layout = new QVBoxLayout(&panel);
        auto *label = new QLabel(u"Easy Access Toolbar"_s);
        auto *button = new QPushButton(u"OK"_s);
        layout->addWidget(label);
        layout->addWidget(button);
        StyleTitlePanel(&panel);
        panel.resize(240, 90);
        window.resize(panel.size());

        for (const QPalette &palette : {LightPalette(), DarkPalette()}) {
            QApplication::setPalette(palette);
            QCoreApplication::processEvents(); // windows learn of the new colours by a posted event
            const QColor accent = AccentColour(palette);
            const QImage image = window.grab().toImage();
            QCOMPARE(QColor(image.pixel(120, 2)), accent);
            QCOMPARE(QColor(image.pixel(2, 45)), accent);
            // Round corners show the window behind.
            QCOMPARE(QColor(image.pixel(0, 0)), palette.color(QPalette::Window));
            QCOMPARE(label->palette().color(QPalette::WindowText), TextOn(accent));
            QCOMPARE(button->palette().color(QPalette::ButtonText), palette.color(QPalette::ButtonText));
            QCOMPARE(button->palette().color(QPalette::Button), palette.color(QPalette::Button));
        }
        QVERIFY(panel.styleSheet().isEmpty());
    }

private:
    void IconRows()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("hasInk");
        QTest::addColumn<bool>("hasAccent");
        for (const IconRow &row : AllIcons())
            QTest::newRow(row.Name) << QString::fromLatin1(row.Name) << row.HasInk << row.HasAccent;
    }

    QPalette m_startPalette;
};

REGISTER_TEST(gui_icons)
#include "gui_icons.moc"
