#include "guidance/frmTallymereTutor.h"

#include "foundation/State.h"
#include "foundation/WindowFields.h"
#include "guidance/TutorPages.h"
#include "platform/controls/Icons.h"

#include <QScreen>
#include <QStyle>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString WidestLine = u"Use the browse (<< and >>) buttons at the top to move "_s; // of each page's footer
constexpr int Lines = 24;          // of a page that are seen without scrolling, where the screen has room
constexpr int FewLines = 8;        // where it would cover the main window with more
constexpr int LeastLines = 5;      // the user may make the window as low as that
constexpr int SettlingTime = 400;  // milliseconds, until a window that appears stands in front
constexpr int TitleBarHeight = 40; // pixels; a guess, before the window manager has put its frame around the window

/// Shown, but not on the screen yet.
bool IsOnItsWay(const Form *form)
{
    return form && form->isVisible() && !form->isMinimized() && !form->windowHandle()->isExposed();
}

} // namespace

frmTallymereTutor::frmTallymereTutor()
{
    // No minimizing: the timer would bring it back with the next page.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    for (int page = 1; page <= MostTutorPages; ++page) {
        const TutorPageEntry &entry = TutorPage(page);
        findChild<QWidget *>(entry.Panel)->findChild<Picture *>()->Show(ThemedIcon(entry.Icon));
    }
    OnClick(ui.imgTallymereTutor, [this] { imgTallymereTutor_Click(); });
    OnEnter(ui.imgTallymereTutor, [this] { ui.imgTallymereTutor->click(); });
    connect(this, &Form::Appears, this, &frmTallymereTutor::MoveToTheCorner);
    m_settling.setInterval(SettlingTime);
    connect(&m_settling, &QTimer::timeout, this, &frmTallymereTutor::ComeInFront);
}

void frmTallymereTutor::Load()
{
    Freeze(false);
    GiveThePageItsRoom();
    MoveToTheCorner();
}

/// Room for the lines of a page as they stand, so that the window keeps its size when the page turns. Where it does not
/// fit beside the main window, or in the welcome beside that one, it is lower and covers less of it.
void frmTallymereTutor::GiveThePageItsRoom()
{
    ensurePolished();
    QTextEdit &page = *ui.rtbInstructions;
    const QFontMetrics letters = page.fontMetrics();
    const int edge = 2 * (page.frameWidth() + int(page.document()->documentMargin()));
    const int bar = page.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &page);
    page.setMinimumSize(letters.horizontalAdvance(WidestLine) + edge + bar, LeastLines * letters.lineSpacing() + edge);
    const auto heightOf = [&](int lines) {
        return sizeHint().height() - page.sizeHint().height() + lines * letters.lineSpacing() + edge;
    };
    const int width = minimumSizeHint().width();
    const QRect room = screen()->availableGeometry().adjusted(0, TitleBarHeight, 0, 0);
    int height = qMin(heightOf(Lines), room.height());
    // The main window goes to the left as far as it has to; any other stays where it is.
    QRect other;
    if (const Form *main = TheWindows.Loaded(WindowName::frmMain))
        other = {room.topLeft(), main->size()};
    else if (const Form *front = TheWindows.Front())
        other = front->frameGeometry();
    if (other.right() > room.right() - width)
        height = qMin(height, qMax(heightOf(FewLines), room.bottom() - other.bottom() - TitleBarHeight));
    resize(width, height);
}

void frmTallymereTutor::TurnTo(int page)
{
    ui.stkTopics->setCurrentWidget(findChild<QWidget *>(TutorPage(page).Panel));
    ui.rtbInstructions->setPlainText(State.TutorInstructions(page));
    ui.pnlInstructions->raise();
    ui.pnlTallymereTutor->raise();
    if (const Form *front = TheWindows.Front(); front != this && IsOnItsWay(front))
        m_settling.start();
}

/// A window that is shown just now is put in front of all others by the window manager when it comes to the screen. The
/// page comes in front of it again, unless it would cover a question that is asked meanwhile.
void frmTallymereTutor::ComeInFront()
{
    const Form *front = TheWindows.Front();
    if (IsOnItsWay(front))
        return;
    m_settling.stop();
    const bool coversQuestion = front && front->isModal() && front->frameGeometry().intersects(frameGeometry());
    if (isVisible() && !coversQuestion)
        raise();
}

void frmTallymereTutor::ShowTeacher(Teacher pose)
{
    ui.imgTallymereTutor->setIcon(TeacherPicture(pose));
}

void frmTallymereTutor::Freeze(bool freezes)
{
    setProperty(TutorFrozenProperty, freezes ? 1 : 0);
    ShowTeacher(freezes ? Teacher::Frozen : Teacher::Pointing);
}

void frmTallymereTutor::imgTallymereTutor_Click()
{
    const bool freezes = !WindowField::TutorIsFrozen();
    Freeze(freezes);
    if (QTimer *timer = WindowField::TutorTimer()) {
        if (freezes)
            timer->stop();
        else
            timer->start(); // also where the option is off or a window had stopped it: the user has asked for more
    }
}

/// The frame is the window manager's and comes with the showing; until then that of the window in front tells how thick
/// it will be.
void frmTallymereTutor::MoveToTheCorner()
{
    const Form *front = TheWindows.Front();
    QMargins frame;
    for (const QWidget *framed : {static_cast<const QWidget *>(this), static_cast<const QWidget *>(front)})
        if (frame.isNull() && framed && framed->windowHandle())
            frame = framed->windowHandle()->frameMargins();
    const QSize size = QRect(QPoint(), this->size()).marginsAdded(frame).size();
    const QRect room = screen()->availableGeometry();
    const QPoint corner(room.left() + room.width() - size.width(), room.top() + room.height() - size.height());
    move(corner);
    if (windowHandle())
        windowHandle()->setFramePosition(corner);
}

/// The window manager has put its frame around the window, which has pushed it out of its corner.
void frmTallymereTutor::moveEvent(QMoveEvent *event)
{
    Window::moveEvent(event);
    if (m_framed || !windowHandle() || windowHandle()->frameMargins().isNull())
        return;
    m_framed = true;
    MoveToTheCorner();
}

frmTallymereTutor &TheTutor()
{
    return static_cast<frmTallymereTutor &>(TheWindows.Touch(WindowName::frmTallymereTutor));
}

void ShowTutorPage(int page)
{
    frmTallymereTutor &tutor = TheTutor();
    tutor.TurnTo(page);
    // Nor does it come over another program that the user is in, such as the help.
    if (!tutor.isVisible() || QGuiApplication::applicationState() != Qt::ApplicationInactive)
        TheWindows.Show(WindowName::frmTallymereTutor);
}

void ReleaseTutor()
{
    if (TheWindows.Loaded(WindowName::frmTallymereTutor))
        TheTutor().Freeze(false);
}
