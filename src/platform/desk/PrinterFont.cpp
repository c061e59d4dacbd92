#include "platform/desk/PrinterFont.h"

#include <QColor>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

struct InkColour {
    const char *Name;
    QRgb Rgb;
};
constexpr InkColour InkColours[] = {
    {"Black", 0x000000},  {"Maroon", 0x800000}, {"Green", 0x008000}, {"Olive", 0x808000},   {"Navy", 0x000080},
    {"Purple", 0x800080}, {"Teal", 0x008080},   {"Gray", 0x808080},  {"Silver", 0xC0C0C0},  {"Red", 0xFF0000},
    {"Lime", 0x00FF00},   {"Yellow", 0xFFFF00}, {"Blue", 0x0000FF},  {"Fuchsia", 0xFF00FF}, {"Aqua", 0x00FFFF},
};

/// The colour as a printing font keeps it: red lowest.
qint32 InkOf(QColor colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

QIcon Swatch(QColor colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return pixmap;
}

/// The desktop's font as the dialog's lists have it: by the name of a family, and by what that calls its plain style.
QFont DesktopFont()
{
    const QFontInfo used((QFont()));
    QFont font(used.family(), QFont().pointSize());
    font.setStyleName(used.styleName());
    return font;
}

/// The toolkit's font dialog, which knows no colour, with a list of colours below it.
class FontDialog : public QDialog
{
public:
    explicit FontDialog(QWidget *above) : QDialog(above)
    {
        setObjectName(u"fontDialog"_s);
        setWindowTitle(u"Font Select"_s);
        m_fonts.setWindowFlags(Qt::Widget);
        m_fonts.setSizeGripEnabled(false);
        m_fonts.layout()->setContentsMargins(0, 0, 0, 0);
        // A page is drawn by outlines; fonts made of dots are for the screen alone.
        m_fonts.setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog | QFontDialog::ScalableFonts);
        m_fonts.setCurrentFont(DesktopFont());
        // Enter and Esc in the part belong to the whole.
        connect(&m_fonts, &QDialog::accepted, this, &QDialog::accept);
        connect(&m_fonts, &QDialog::rejected, this, &QDialog::reject);

        m_colours.setObjectName(u"inkColour"_s);
        m_colours.setAccessibleName(u"Color"_s);
        for (const InkColour &colour : InkColours)
            m_colours.addItem(Swatch(QColor(colour.Rgb)), QLatin1String(colour.Name), QColor(colour.Rgb));
        auto *label = new QLabel(u"&Color"_s);
        label->setBuddy(&m_colours);
        auto *colours = new QHBoxLayout;
        colours->addWidget(label);
        colours->addWidget(&m_colours);
        colours->addStretch();

        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&m_fonts, 1);
        layout->addLayout(colours);
        layout->addWidget(buttons);
    }

    PrintFont Chosen() const
    {
        const QFont font = m_fonts.currentFont();
        return {font.family(),
                float(font.pointSizeF()),
                font.bold(),
                font.italic(),
                font.underline(),
                font.strikeOut(),
                InkOf(m_colours.currentData().value<QColor>())};
    }

private:
    QFontDialog m_fonts;
    QComboBox m_colours;
};

} // namespace

std::optional<PrintFont> AskPrinterFont(QWidget *above)
{
    FontDialog dialog(above);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.Chosen();
}
