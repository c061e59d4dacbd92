// The hand on the program's windows, for the worked cases: what a case does and reads goes through the windows' own
// handlers, so that a case fails where a window does. A window or control that is not there ends the case.
#pragma once

#include <QString>

class Grid;
class ListBox;

void Open(const QString &window);
/// The handler of a button's click, also where the window keeps the button grey: a case may ask for more than a user
/// can.
void Press(const QString &window, const QString &button);
/// A button that switches something on.
void SwitchOn(const QString &window, const QString &button);
/// A click on a check box that leaves it checked or not.
void ClickBox(const QString &window, const QString &box, bool checked);
void Enter(const QString &window, const QString &field, const QString &text);
void PressEnterIn(const QString &window, const QString &field);
/// A click on a row, from 0.
void Pick(const QString &window, const QString &list, int row);

QString TextIn(const QString &window, const QString &field);
QString FocusIn(const QString &window);
QString TitleOf(const QString &window);
ListBox &ListIn(const QString &window, const QString &list);
Grid &GridIn(const QString &window, const QString &grid);
