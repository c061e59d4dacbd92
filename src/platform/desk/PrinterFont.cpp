#include "platform/desk/PrinterFont.h"

#include <QColor>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpressionValidator>
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

struct Look {
    int Weight = 0;
    bool IsItalic = false;
};

Look LookOf(const QString &family, const QString &style)
{
    const QFont font = QFontDatabase::font(family, style, 10); // of any size; it counts oblique letters as italic
    return {QFontDatabase::weight(family, style), font.italic()};
}

/// Whether documents come out in that style: a printing font knows a family, bold and italic, and no more of it.
bool CanBePrinted(const QString &family, const QString &style)
{
    const Look look = LookOf(family, style);
    QFont printed(family);
    printed.setBold(look.Weight > QFont::Medium);
    printed.setItalic(look.IsItalic);
    return QFontInfo(printed).styleName() == style;
}

/// How far a style is from the look that is wanted; the smallest is the nearest. Slanted letters are never taken for
/// upright ones while there is a choice, and narrow or wide ones only where the family has no others.
int DistanceOf(const QString &family, const QString &style, Look wanted)
{
    static const QRegularExpression width(u"Condensed|Compressed|Narrow|Expanded|Extended|Wide"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    constexpr int aboveAllWeights = 1000;
    const Look look = LookOf(family, style);
    return qAbs(look.Weight - wanted.Weight) + (style.contains(width) ? aboveAllWeights : 0) +
           (look.IsItalic != wanted.IsItalic ? 2 * aboveAllWeights : 0);
}

/// What stands in the field of the size, in points with one decimal; nothing where that is no size for a page.
std::optional<float> SizeOf(QString text)
{
    bool isNumber = false;
    const float size = text.replace(u',', u'.').toFloat(&isNumber);
    if (!isNumber || size < 1 || size > 72)
        return {};
    return size;
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
        connect(&m_fonts, &QDialog::rejected, this, &QDialog::reject); // Esc in the part belongs to the whole
        WatchParts();

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
        m_ok = buttons->button(QDialogButtonBox::Ok);
        m_ok->setDefault(true);
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
                SizeOf(m_size->text()).value_or(float(font.pointSizeF())),
                font.bold(),
                font.italic(),
                font.underline(),
                font.strikeOut(),
                InkOf(m_colours.currentData().value<QColor>())};
    }

protected:
    /// Enter in the toolkit's part is the whole's OK; alone the part would swallow it, or close itself.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                m_ok->click();
                return true;
            }
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    void WatchParts()
    {
        const auto lists = m_fonts.findChildren<QListView *>(Qt::FindDirectChildrenOnly);
        const auto fields = m_fonts.findChildren<QLineEdit *>(Qt::FindDirectChildrenOnly);
        m_families = lists.value(0);
        m_styles = lists.value(1);
        m_size = fields.value(2);
        m_fonts.installEventFilter(this);
        for (QListView *list : lists)
            list->installEventFilter(this);

        const QFont start = m_fonts.currentFont();
        m_look = {start.weight(), start.italic()};
        m_family = Text(*m_families);
        OfferWhatIsPrinted();
        connect(m_families->selectionModel(), &QItemSelectionModel::currentChanged, this, &FontDialog::FamilyChanged);
        connect(m_styles->selectionModel(), &QItemSelectionModel::currentChanged, this, &FontDialog::StyleChanged);

        // The toolkit's field takes whole numbers, and would read "10.5" as 105.
        m_size->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]{1,2}([.,][0-9]?)?"_s), m_size));
        m_sizeText = m_size->text();
        connect(m_size, &QLineEdit::textChanged, this, &FontDialog::SizeChanged);
    }

    static QString Text(const QListView &list) { return list.currentIndex().data().toString(); }

    /// The toolkit goes by the name of the style, and takes the first one of a family that has no such name, which may
    /// be bold or slanted. What the user asked for is a look, and every family has another name for it.
    void FamilyChanged()
    {
        m_family = Text(*m_families);
        OfferWhatIsPrinted();
        const Look wanted = m_look;
        GoToNearest();
        m_look = wanted; // a family without that look does not change what is wanted of the next one
        m_size->setText(m_sizeText);
    }

    /// Hides the styles that a document would not be printed in, unless the family has no others.
    void OfferWhatIsPrinted()
    {
        const QAbstractItemModel &styles = *m_styles->model();
        QList<int> others;
        for (int row = 0; row < styles.rowCount(); ++row)
            if (!CanBePrinted(m_family, styles.index(row, 0).data().toString()))
                others += row;
        for (int row = 0; row < styles.rowCount(); ++row)
            m_styles->setRowHidden(row, others.contains(row) && others.size() < styles.rowCount());
    }

    /// To the style in sight that is nearest to the look that is wanted.
    void GoToNearest()
    {
        const QAbstractItemModel &styles = *m_styles->model();
        int nearest = -1, least = 0;
        for (int row = 0; row < styles.rowCount(); ++row) {
            if (m_styles->isRowHidden(row))
                continue;
            const QString style = styles.index(row, 0).data().toString();
            const int distance = DistanceOf(m_family, style, m_look);
            if (nearest < 0 || distance < least) {
                nearest = row;
                least = distance;
            }
        }
        if (nearest >= 0)
            m_styles->setCurrentIndex(styles.index(nearest, 0));
    }

    void StyleChanged()
    {
        const QString style = Text(*m_styles);
        if (style.isEmpty() || Text(*m_families) != m_family)
            return; // the list is being filled for another family
        m_look = LookOf(m_family, style);
        if (m_styles->isRowHidden(m_styles->currentIndex().row())) // typed letters find it all the same
            return GoToNearest();
        m_size->setText(m_sizeText); // the toolkit has put its whole number there
    }

    void SizeChanged()
    {
        m_sizeText = m_size->text();
        m_ok->setEnabled(SizeOf(m_sizeText).has_value());
    }

    QFontDialog m_fonts;
    QComboBox m_colours;
    QPushButton *m_ok = nullptr;
    QListView *m_families = nullptr; // lists and a field of m_fonts
    QListView *m_styles = nullptr;
    QLineEdit *m_size = nullptr;
    QString m_family;   // whose styles are listed
    Look m_look;        // that the user wants, of whatever family
    QString m_sizeText; // as the user has it
};

} // namespace

QString NameOf(const PrintFont &font)
{
    QStringList parts{font.Name, u"%1 points"_s.arg(double(font.Size))};
    for (const auto &[isSet, name] : {std::pair{font.Bold, u"bold"_s},
                                      {font.Italic, u"italic"_s},
                                      {font.Underline, u"underlined"_s},
                                      {font.Strikethru, u"struck out"_s}})
        if (isSet)
            parts += name;
    for (const InkColour &colour : InkColours)
        if (InkOf(QColor(colour.Rgb)) == font.Color)
            parts += QString(QLatin1String(colour.Name)).toLower();
    return parts.join(u", "_s);
}

std::optional<PrintFont> AskPrinterFont(QWidget *above)
{
    FontDialog dialog(above);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.Chosen();
}
