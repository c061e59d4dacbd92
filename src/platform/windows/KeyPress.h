// What a field that is filled by another window takes as a key press.
#pragma once

#include <QKeyEvent>

/// A character, Backspace or Esc; Enter comes by OnEnter, and a tab is none.
inline bool IsKeyPress(const QKeyEvent &key)
{
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Escape)
        return true;
    return !key.text().isEmpty() && key.text().front().isPrint();
}
