#include "platform/controls/UpDown.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ArrowWidth = 20;

/// Half as high as a field, which is less than a tool button wants.
class Arrow : public QToolButton
{
public:
    using QToolButton::QToolButton;
    QSize sizeHint() const override { return {ArrowWidth, fontMetrics().height() / 2}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionToolButton ground;
        initStyleOption(&ground);
        ground.state &= ~QStyle::State_AutoRaise;
        ground.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
        painter.drawPrimitive(QStyle::PE_PanelButtonTool, ground);
        QStyleOption arrow;
        arrow.initFrom(this);
        const int side = qMin(height() - 4, 9);
        arrow.rect = QRect((width() - side) / 2, (height() - side) / 2, side, side);
        painter.drawPrimitive(arrowType() == Qt::UpArrow ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown,
                              arrow);
    }
};

} // namespace

UpDown::UpDown(QWidget *parent) : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    AddArrow(u"Up"_s, Qt::UpArrow, 1);
    AddArrow(u"Down"_s, Qt::DownArrow, -1);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void UpDown::AddArrow(const QString &name, Qt::ArrowType arrow, int step)
{
    auto *button = new Arrow(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the keys of the field are the way for the keyboard
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setAccessibleName(step > 0 ? u"One more"_s : u"One less"_s);
    button->setToolTip(button->accessibleName());
    connect(button, &QToolButton::clicked, this, [this, step] { Q_EMIT Stepped(step); });
    layout()->addWidget(button);
}

void UpDown::SetBuddy(QLineEdit *field)
{
    m_buddy = field;
    field->installEventFilter(this);
    updateGeometry();
}

QSize UpDown::sizeHint() const
{
    return {ArrowWidth, m_buddy ? m_buddy->sizeHint().height() : 2 * fontMetrics().height()};
}

bool UpDown::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_buddy || event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    Q_EMIT Stepped(key == Qt::Key_Up ? 1 : -1);
    return true;
}
