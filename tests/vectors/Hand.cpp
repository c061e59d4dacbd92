#include "Hand.h"

#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/windows/WindowRegister.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

Form &LoadedWindow(const QString &window)
{
    Form *form = TheWindows.Loaded(window);
    if (!form)
        throw std::runtime_error(qPrintable(window + u" is not loaded"_s));
    return *form;
}

template <class Control>
Control &In(const QString &window, const QString &name)
{
    auto *control = LoadedWindow(window).findChild<Control *>(name);
    if (!control)
        throw std::runtime_error(qPrintable(u"no %1.%2"_s.arg(window, name)));
    return *control;
}

} // namespace

void Open(const QString &window)
{
    TheWindows.Show(window);
}

void Press(const QString &window, const QString &button)
{
    Q_EMIT In<QAbstractButton>(window, button).clicked();
}

void SwitchOn(const QString &window, const QString &button)
{
    In<QAbstractButton>(window, button).setChecked(true);
}

void ClickBox(const QString &window, const QString &box, bool checked)
{
    auto &button = In<QAbstractButton>(window, box);
    {
        const QSignalBlocker noClick(button);
        button.setChecked(!checked);
    }
    button.setChecked(checked);
}

void Enter(const QString &window, const QString &field, const QString &text)
{
    In<QLineEdit>(window, field).setText(text);
}

void PressEnterIn(const QString &window, const QString &field)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCoreApplication::sendEvent(&In<QLineEdit>(window, field), &press);
}

void Pick(const QString &window, const QString &list, int row)
{
    ListIn(window, list).SetListIndex(row);
}

QString TextIn(const QString &window, const QString &field)
{
    return In<QLineEdit>(window, field).text();
}

QString FocusIn(const QString &window)
{
    const QWidget *control = LoadedWindow(window).FocusControl();
    return control ? control->objectName() : QString();
}

QString TitleOf(const QString &window)
{
    return LoadedWindow(window).windowTitle();
}

ListBox &ListIn(const QString &window, const QString &list)
{
    return In<ListBox>(window, list);
}

Grid &GridIn(const QString &window, const QString &grid)
{
    return In<Grid>(window, grid);
}
