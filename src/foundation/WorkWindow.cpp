#include "foundation/WorkWindow.h"

#include "foundation/Tutor.h"
#include "platform/windows/WindowRegister.h"

#include <QTimer>

QTimer *TutorTimer()
{
    Form *main = TheWindows.Loaded(QStringLiteral("frmMain"));
    return main ? main->findChild<QTimer *>(QStringLiteral("tmrAutoTutor")) : nullptr;
}

void WorkWindow::Load()
{
    QTimer *timer = TutorTimer();
    if (timer && timer->isActive()) {
        RememberedTutorTimer = true;
        timer->stop();
    }
}

void WorkWindow::Unload()
{
    if (!RememberedTutorTimer)
        return;
    RememberedTutorTimer = false;
    if (QTimer *timer = TutorTimer())
        timer->start();
}
