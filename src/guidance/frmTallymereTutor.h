// The tutor: a teacher, the picture of a topic and a page of instructions, in the corner of the screen.
#pragma once

#include "guidance/TeacherPicture.h"
#include "platform/windows/Window.h"
#include "ui_frmTallymereTutor.h"

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

protected:
    void moveEvent(QMoveEvent *event) override;

private:
    void imgTallymereTutor_Click();
    void GiveThePageItsRoom();
    void MoveToTheCorner();

    bool m_framed = false;
    qint16 TutorFrozen = 0; ///< 1 after a click on the teacher, until the next one
};

/// The tutor's window, loaded unseen where it is not loaded yet.
frmTallymereTutor &TheTutor();

/// The common step of every command that shows a page: it stands on the screen, and the user works on where he was.
void ShowTutorPage(int page);
