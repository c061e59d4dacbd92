#include "platform/controls/PrintSwitch.h"

#include "platform/controls/Theme.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Padding = 14;
constexpr double Radius = 5;
constexpr double LineContrast = 3;

/// A side without a look of its own, which the switch draws. Its word is a label that lets clicks through.
class Side : public QPushButton
{
public:
    Side(const QString &name, const QString &wordName, const QString &word, QWidget *parent) : QPushButton(parent)
    {
        setObjectName(name);
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        auto *label = new QLabel(word, this);
        label->setObjectName(wordName);
        label->setAlignment(Qt::AlignCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        row->addWidget(label);
    }
    /// Both sides have the room of the longer word, at the height of a button.
    QSize sizeHint() const override
    {
        QPushButton button(u"Off"_s);
        button.setFont(font());
        return {fontMetrics().horizontalAdvance(u"Off"_s) + 2 * Padding, button.sizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent *) override {}
};

} // namespace

PrintSwitch::PrintSwitch(QWidget *parent)
    : QWidget(parent), m_on(new Side(u"pbPrintOn"_s, u"Label1"_s, u"On"_s, this)),
      m_off(new Side(u"pbPrintOff"_s, u"Label2"_s, u"Off"_s, this))
{
    m_on->setAccessibleName(u"Print on"_s);
    m_on->setToolTip(u"Print every run from now on"_s);
    m_off->setAccessibleName(u"Print off"_s);
    m_off->setToolTip(u"Stop printing and send the pages off"_s);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_on);
    row->addWidget(m_off);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    m_off->setChecked(true);
    auto *sides = new QButtonGroup(this); // one of them is always checked
    sides->addButton(m_on);
    sides->addButton(m_off);
    ShowState();
    connect(sides, &QButtonGroup::buttonToggled, this, [this](QAbstractButton *side, bool checked) {
        ShowState();
        if (checked)
            Q_EMIT Click(side == m_on);
    });
}

bool PrintSwitch::IsOn() const
{
    return m_on->isChecked();
}

void PrintSwitch::Set(bool on)
{
    (on ? m_on : m_off)->setChecked(true);
}

void PrintSwitch::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowState();
}

/// The ground of each side is its palette's button colour, and its word has the text colour that goes with it.
void PrintSwitch::ShowState()
{
    const QColor accent = AccentColour(palette());
    for (QPushButton *side : {m_on, m_off}) {
        QPalette colours = palette();
        if (side->isChecked()) {
            colours.setColor(QPalette::Button, accent);
            colours.setColor(QPalette::ButtonText,
                             TextOn(accent)); // a label on a button takes the button's text colour
        }
        side->setPalette(colours);
        side->setFocusPolicy(side->isChecked() ? Qt::StrongFocus : Qt::ClickFocus); // the lit side is the tab stop
    }
    update();
}

void PrintSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath shape;
    shape.addRoundedRect(edge, Radius, Radius);
    painter.setClipPath(shape);
    for (const QPushButton *side : {m_on, m_off}) {
        const QColor ground = side->palette().color(QPalette::Button);
        painter.fillRect(side->geometry(), side->isDown() ? ground.darker(115) : ground);
    }
    painter.setClipping(false);
    painter.setPen(ReadableOn(palette().color(QPalette::Mid), palette().color(QPalette::Window), LineContrast));
    painter.drawPath(shape);
    for (const QPushButton *side : {m_on, m_off}) {
        if (!side->hasFocus())
            continue;
        painter.setPen(QPen(side->palette().color(QPalette::ButtonText), 1, Qt::DotLine));
        painter.drawRoundedRect(QRectF(side->geometry()).adjusted(3.5, 3.5, -3.5, -3.5), Radius - 2, Radius - 2);
    }
}
