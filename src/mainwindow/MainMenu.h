// The main window's menus, toolbar and State of the Budget as data. One routine each walks these tables.
#pragma once

#include <QList>
#include <QString>

/// What an entry does beyond opening a window.
enum class Command {
    Open, ///< opens Window, showing the tutor's page first
    Exit,
    SavingsForecast, ///< asks whether to print, then opens
    OpenStoreList,
    PrintCurrentList,
    MathCalculator,
    SetCurrentPayPeriod,
    TipOfTheDay,
    Tutor,
    WelcomeScreen,
    Search,
    StartRoute, ///< opens the guide under the title of a route
    Submenu,
    Separator,
};

/// One row of the menu bar. A menu or submenu has no parent row of its own kind: Menu names the menu it stands in.
struct MenuEntry {
    QString Menu; ///< name of the menu that holds it; empty for the menus of the bar
    QString Name;
    QString Caption; ///< "&" before the access key
    Command TheCommand = Command::Open;
    QString Window;    ///< name of the window that it opens or that its option is about, if any
    int TutorPage = 0; ///< 0: none
    QString Shortcut;
};
const QList<MenuEntry> &MainMenu();

/// One of the sixteen toolbar buttons, in order of index from 1.
struct ToolbarEntry {
    QString ToolTip;
    QString ActsAs; ///< name of the menu entry
    QString Icon;
    QString Hint;
};
const QList<ToolbarEntry> &MainToolbar();

/// One line of the State of the Budget, in order of list position.
struct StateEntry {
    QString (*Line)();
    QString Window;
};
const QList<StateEntry> &BudgetStateLines();
/// The position of the current shopping list's line.
constexpr int CurrentListLine = 6;
