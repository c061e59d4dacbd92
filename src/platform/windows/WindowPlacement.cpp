#include "platform/windows/WindowPlacement.h"

#include "platform/windows/Form.h"
#include "platform/windows/Placement.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>

namespace {

/// The size that the toolkit is going to give it, unless the window has set its own.
QSize SizeWhenShown(Form &form)
{
    form.ensurePolished();
    if (!form.testAttribute(Qt::WA_Resized)) {
        form.adjustSize();
        form.setAttribute(Qt::WA_Resized, false);
    }
    return form.size();
}

} // namespace

void PlaceBeside(Form &form, const Form *caller)
{
    if (!caller || caller == &form || !caller->isVisible() || caller->isMinimized() || !form.StandsBesideItsCaller())
        return;
    // The frame is the window manager's and comes with the showing; the caller's tells how thick it will be.
    const QSize frame = caller->frameGeometry().size() - caller->geometry().size();
    Surroundings around{.Caller = caller->frameGeometry(), .OverCaller = form.isModal()};
    for (const QScreen *screen : QGuiApplication::screens())
        around.Screens += screen->availableGeometry();
    if (const auto *field = qobject_cast<QLineEdit *>(caller->FocusControl()))
        around.Field = {field->mapToGlobal(QPoint()), field->size()};
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (qobject_cast<const Form *>(widget) && widget->isVisible() && widget != caller && widget != &form)
            around.Others += widget->frameGeometry();
    form.move(Placed(SizeWhenShown(form) + frame, around));
}
