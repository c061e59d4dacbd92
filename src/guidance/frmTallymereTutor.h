// The tutor: a teacher, the picture of a topic and a page of instructions, in the corner of the screen.
#pragma once

#include "guidance/TeacherPicture.h"
#include "platform/windows/Window.h"
#include "ui_frmTallymereTutor.h"

#include <QTimer>

class frmTallymereTutor : public Window<Ui::frmTallymereTutor>
{
public:
    frmTallymereTutor();
    void Load() override;
    /// It comes while the user works in another window.
    bool TakesActivation() const override { return false; }

    /// Puts a page, 1 to 26, into the window. Error 9 for any other.
    void TurnTo(int page);
    void ShowTeacher(Teacher pose);
    /// Keeps the page that stands there, or lets go of it, and shows that by the teacher. The timer is another's
    /// matter.
    void Freeze(bool freezes);

protected:
    void moveEvent(QMoveEvent *event) override;

private:
    void imgTallymereTutor_Click();
    void GiveThePageItsRoom();
    void MoveToTheCorner();
    void ComeInFront();

    bool m_framed = false;
    QTimer m_settling; ///< runs while a window in front is still on its way to the screen
};

/// The tutor's window, loaded unseen where it is not loaded yet.
frmTallymereTutor &TheTutor();

/// The common step of every command that shows a page: it stands on the screen, and the user works on where he was.
void ShowTutorPage(int page);

/// A tutor that is frozen goes on; without one nothing happens.
void ReleaseTutor();
