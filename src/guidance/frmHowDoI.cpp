#include "guidance/frmHowDoI.h"

#include "foundation/WindowFields.h"
#include "guidance/TutorPages.h"
#include "guidance/frmTallymereTutor.h"
#include "platform/controls/Icons.h"

#include <QScreen>
#include <QScrollBar>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int TitleBarHeight = 40; // pixels; a guess, before the window manager has put its frame around the window

void StopTutorTimer()
{
    if (QTimer *timer = WindowField::TutorTimer())
        timer->stop();
}

} // namespace

frmHowDoI::frmHowDoI()
{
    int index = 0;
    while (auto *topic = findChild<QToolButton *>(u"lblHowDoI%1"_s.arg(index))) {
        topic->setIcon(ThemedIcon(TutorPage(index + 1).Icon));
        OnClick(topic, [this, index] { lblHowDoI_Click(index); });
        OnEnter(topic, [topic] { topic->click(); });
        ++index;
    }
    OnClick(ui.cmdMore, [this] { ShowPanel(*ui.SSPanel2, *ui.cmdPrevious); });
    OnClick(ui.cmdPrevious, [this] { ShowPanel(*ui.SSPanel1, *ui.cmdMore); });
}

void frmHowDoI::Load()
{
    ui.imgTallymereTutor->Show(TeacherPicture(Teacher::Pointing));
    ui.pnlTallymereTutor->raise();
    GiveTheTopicsTheirRoom();
}

/// All topics of the longer page are seen at once, as far as the screen goes; there they are scrolled.
void frmHowDoI::GiveTheTopicsTheirRoom()
{
    ensurePolished();
    const int bar = ui.scrTopics1->verticalScrollBar()->sizeHint().width();
    for (const auto &[area, topics] : {std::pair{ui.scrTopics1, ui.topics1}, {ui.scrTopics2, ui.topics2}})
        area->setMinimumWidth(topics->sizeHint().width() + bar);
    const int hidden = ui.topics1->sizeHint().height() - ui.scrTopics1->sizeHint().height();
    resize(
        sizeHint().grownBy({0, 0, 0, qMax(0, hidden)}).boundedTo(screen()->availableSize() - QSize(0, TitleBarHeight)));
}

/// The focus goes along to the button that leads back, or it would stay on one that is out of sight.
void frmHowDoI::ShowPanel(QWidget &panel, QWidget &wayBack)
{
    ui.stkPanels->setCurrentWidget(&panel);
    ui.pnlTallymereTutor->raise();
    FocusOn(&wayBack);
}

void frmHowDoI::lblHowDoI_Click(int index)
{
    TheTutor().TurnTo(index + 1);
    TopicChosen = true;
    StopTutorTimer();
    // The tutor itself does not count as frozen by this: the first click on the teacher afterwards freezes it.
    TheTutor().ShowTeacher(Teacher::Frozen);
    // It becomes the active window, so that the end of this one does not lead to the main window, which would start the
    // timer again.
    TheWindows.ShowAndActivate(WindowName::frmTallymereTutor);
    TheWindows.Unload(objectName());
}

/// The timer that this window had stopped runs again by now, as after every window that pauses the tutor.
void frmHowDoI::Unload()
{
    if (TopicChosen)
        StopTutorTimer();
}
