// The fake desk of window tests: the program's windows are declared, a household lies in the folder, and controls are
// found by their given names.
#pragma once

#include "FakeDesk.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/windows/WindowRegister.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

class GuiDesk : public FakeDesk
{
public:
    explicit GuiDesk(std::source_location where = std::source_location::current());
    ~GuiDesk() override;

    /// Loads the household of the folder and shows the main window with the pay period answered; what is shown and
    /// active afterwards is frmMain alone. From here on the end of the program is to be taken.
    void StartProgram(std::source_location where = std::source_location::current());
};

/// Lets everything happen that is due.
void Settle();

/// The line of a test that is to be named where something fails.
using TestLine = std::source_location;

/// Fails the test at its own line.
void Fail(const QString &text, TestLine where);
/// The line of the last thing that a test did to a window.
TestLine LastAct();
/// Ends the program with a word at the test's line: nothing sensible can follow.
[[noreturn]] void GiveUp(const QString &text, TestLine where);

/// A control of a loaded window; the program ends where it does not exist.
template <class Control = QWidget>
Control &Find(const QString &window, const QString &control, TestLine where = TestLine::current())
{
    Form *form = TheWindows.Loaded(window);
    auto *found = form ? form->findChild<Control *>(control) : nullptr;
    if (!found)
        GiveUp(QStringLiteral("no %1.%2").arg(window, control), where);
    return *found;
}

// What the user does. What a user cannot do, because the control is grey, unseen or behind a modal window, fails.
void Show(const QString &window, TestLine where = TestLine::current());
/// A real click of the mouse on a button.
void Click(const QString &window, const QString &control, TestLine where = TestLine::current());
/// Replaces the field's text by typing.
void Type(const QString &window, const QString &field, const QString &text, TestLine where = TestLine::current());
void PressEnter(const QString &window, const QString &field, TestLine where = TestLine::current());
/// A real click of the mouse on a list's row.
void ClickRow(const QString &window, const QString &list, int row, TestLine where = TestLine::current());
/// Chooses an entry of the main window's menus.
void Choose(const QString &entry, TestLine where = TestLine::current());
void CloseByFrame(const QString &window, TestLine where = TestLine::current());

// What the user sees
QString TextOf(const QString &window, const QString &control,
               TestLine where = TestLine::current()); ///< of a field, label or button
bool IsEnabled(const QString &window, const QString &control, TestLine where = TestLine::current());
QStringList RowsOf(const QString &window, const QString &list, TestLine where = TestLine::current());
/// The name of the control that has the focus in the window.
QString FocusOf(const QString &window, TestLine where = TestLine::current());
bool IsShown(const QString &window);
QString ActiveWindow();
/// The rows of a grid that are not empty from row `from` on, cells joined by " | ".
QStringList GridRows(const QString &window, const QString &grid, int from = 0, TestLine where = TestLine::current());
