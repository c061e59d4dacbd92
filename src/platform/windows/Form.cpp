#include "platform/windows/Form.h"

#include "platform/controls/Fields.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOption>

namespace {

/// What the lines of a label need in its width. The label's own answer never falls below its least height, so one like
/// it without any is asked.
int HeightOfLines(const QLabel &label, const QString &text)
{
    QLabel lines(text);
    lines.setWordWrap(true);
    lines.setTextFormat(label.textFormat());
    lines.setFont(label.font());
    lines.setAlignment(label.alignment());
    lines.setMargin(label.margin());
    lines.setIndent(label.indent());
    lines.setFrameStyle(label.frameStyle());
    lines.setLineWidth(label.lineWidth());
    lines.setMidLineWidth(label.midLineWidth());
    return lines.heightForWidth(label.width());
}

} // namespace

Form::Form() : QWidget(nullptr, Qt::Window) {}

void Form::GotFocus(QWidget *control)
{
    if (auto *field = qobject_cast<QLineEdit *>(control))
        SelectWhole(field);
    if (const auto handler = m_gotFocus.value(control))
        handler();
}

void Form::LostFocus(QWidget *control)
{
    if (const auto handler = m_lostFocus.value(control))
        handler();
}

void Form::FocusOn(QWidget *control)
{
    TheFormHost->MoveFocus(this, control);
}

QWidget *Form::FocusControl() const
{
    // The toolkit knows better where a control was disabled, or clicked, while another window was active.
    if (CanHaveFocus(focusWidget()))
        return focusWidget();
    return CanHaveFocus(m_focus) ? m_focus.data() : FirstControl();
}

QWidget *Form::FirstControl() const
{
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain())
        if ((widget->focusPolicy() & Qt::TabFocus) && CanHaveFocus(widget))
            return widget;
    return nullptr;
}

bool Form::CanHaveFocus(const QWidget *control) const
{
    return control && control != this && control->window() == this && control->isEnabled() &&
           control->isVisibleTo(this) && !qobject_cast<const QMenuBar *>(control);
}

void Form::EnterRing(const QList<QLineEdit *> &ring)
{
    for (qsizetype i = 0; i < ring.size(); ++i) {
        QLineEdit *next = ring[(i + 1) % ring.size()];
        OnEnter(ring[i], [this, next] {
            FocusOn(next);
            SelectWhole(next);
        });
    }
}

void Form::CurrencyWhenLeft(const QList<QLineEdit *> &fields)
{
    for (QLineEdit *field : fields)
        OnLostFocus(field, [field] { ShowAsCurrency(field); });
}

void Form::OnEnter(QWidget *field, const std::function<void()> &handler)
{
    m_enter.insert(field, handler);
}

void Form::OnGotFocus(QWidget *control, const std::function<void()> &handler)
{
    m_gotFocus.insert(control, handler);
}

void Form::OnLostFocus(QWidget *control, const std::function<void()> &handler)
{
    m_lostFocus.insert(control, handler);
}

bool Form::HandleEnter(QObject *control)
{
    const auto handler = m_enter.value(control);
    if (handler)
        handler();
    return bool(handler);
}

bool Form::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Polish) {
        ShowDescriptionsUnderThePointer();
        for (QLineEdit *field : findChildren<QLineEdit *>())
            ShowFromBeginning(field);
    }
    if (event->type() == QEvent::Polish || event->type() == QEvent::FontChange)
        GiveFieldsTheirWidth();
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
        GiveLinesTheirHeight();
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        if (layout())
            layout()->activate(); // takes the height of the lines into account at once
        Q_EMIT Appears();
    }
    return done;
}

/// What a field takes is told to everybody, not only to who has it read aloud.
void Form::ShowDescriptionsUnderThePointer()
{
    for (QLineEdit *field : findChildren<QLineEdit *>())
        if (field->toolTip().isEmpty())
            field->setToolTip(field->accessibleDescription());
}

/// A field whose design names its longestText is never narrower than that text, whatever the letters are.
void Form::GiveFieldsTheirWidth()
{
    constexpr int margin = 2; // the toolkit's own, on either side of a field's text
    constexpr int caret = 1;
    for (QLineEdit *field : findChildren<QLineEdit *>()) {
        const QString longest = field->property("longestText").toString();
        if (longest.isEmpty())
            continue;
        field->ensurePolished();
        QStyleOptionFrame option;
        option.initFrom(field);
        option.lineWidth =
            field->hasFrame() ? field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field) : 0;
        const QSize text(field->fontMetrics().horizontalAdvance(longest) + 2 * margin + caret, 0);
        const QSize whole = field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, field);
        field->setMinimumWidth(qMax(field->minimumWidth(), whole.width()));
    }
}

/// Layouts let a label of several lines be squeezed when the window is small or its letters are large; here it keeps
/// the height that its lines need in its width, and gives it back when they need less again. A label whose design names
/// its longestText has room for that from the start, so that nothing moves when its text comes.
void Form::GiveLinesTheirHeight()
{
    for (QLabel *label : findChildren<QLabel *>()) {
        if (!label->wordWrap() || !label->isVisible())
            continue;
        LinesHeight &height = m_linesHeights[label];
        if (label->minimumHeight() != height.Given) { // set elsewhere: it never gets less than that
            height.Reserved = label->minimumHeight();
            height.Given = 0;
        }
        const QString longest = label->property("longestText").toString();
        if (!longest.isEmpty() || height.Given > 0 || label->heightForWidth(label->width()) > label->height()) {
            const int longestHeight = longest.isEmpty() ? 0 : HeightOfLines(*label, longest);
            height.Given = qMax(qMax(height.Reserved, longestHeight), HeightOfLines(*label, label->text()));
            label->setMinimumHeight(height.Given);
        }
    }
}

void Form::closeEvent(QCloseEvent *event)
{
    if (!TheFormHost->Keeps(this)) // ended already
        return;
    event->ignore(); // the register hides and ends the window itself
    TheFormHost->CloseByFrame(this);
}
