#include "mainwindow/frmMain.h"

#include "foundation/Options.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "foundation/Tutor.h"
#include "foundation/WindowFields.h"
#include "foundation/WindowNames.h"
#include "mainwindow/StateLineLook.h"
#include "platform/controls/Icons.h"
#include "platform/controls/Theme.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/CurrentList.h"
#include "shopping/PrintedList.h"
#include "shopping/ShoppingDoors.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int LastTimedTutorPage = 24;
constexpr int LeastButton = 36;     // pixels; room for the smallest icon
constexpr int LeastLinePadding = 8; // pixels, above and below a line of the list together
constexpr int HighestLine = 56;     // pixels; more would tear the list apart on a large screen
constexpr int LeastLines = 5;       // of the list; the others are scrolled to
constexpr int LineCharacters = 52;  // what the list, and a line of the hint, have room for in their width
constexpr int TitleBarHeight = 40;  // pixels; a guess, before the window manager has put its frame around the window

void ShowStateLine(QListWidgetItem &line, const StateEntry &entry)
{
    line.setText(entry.Line());
    line.setToolTip(line.text()); // a long name may not fit
}

} // namespace

frmMain::frmMain()
{
    setWindowIcon(ThemedIcon(u"tallymere"_s));
    for (QFrame *panel : {ui.pnlBudgetState, ui.pnlToolbar})
        StyleTitlePanel(panel);
    for (QLabel *title : {ui.lblBudgetState, ui.lblToolbarTitle}) {
        QFont font = title->font();
        font.setPointSizeF(font.pointSizeF() * 1.25);
        font.setBold(true);
        title->setFont(font);
    }
    Timer1.setParent(this);
    Timer1.setObjectName(u"Timer1"_s);
    Timer1.setInterval(1000);
    tmrAutoTutor.setParent(this);
    tmrAutoTutor.setObjectName(u"tmrAutoTutor"_s);
    tmrAutoTutor.setInterval(10000);

    BuildMenus();
    BuildToolbar();
    BuildStatusBar();
    ui.lstBudgetState->setItemDelegate(new StateLineLook(ui.lstBudgetState));
    ui.lstBudgetState->setMouseTracking(true);
    ReserveSpace();

    connect(ui.lstBudgetState, &ListBox::Click, this, &frmMain::lstBudgetState_Click);
    OnClick(ui.cmdExit, LeaveProgram);
    OnClick(ui.cmdTutor, [this] { Entry(u"mnuTallymereTutor"_s)->trigger(); });
    OnClick(ui.cmdHowDoI, [this] { ActOn(u"mnuHowDoI"_s); });
    OnClick(ui.cmdGettingStarted, [this] { cmdGettingStarted_Click(); });
    connect(&TheShoppingDoors, &ShoppingDoors::StoreFileNamed, this, &frmMain::ShowCurrentList);
    connect(&Timer1, &QTimer::timeout, this, &frmMain::Timer1_Timer);
    connect(&tmrAutoTutor, &QTimer::timeout, this, &frmMain::tmrAutoTutor_Timer);
}

void frmMain::BuildMenus()
{
    m_menuBar = new QMenuBar(this);
    m_menuBar->setObjectName(u"menuBar"_s);
    m_menuBar->setNativeMenuBar(false);
    layout()->setMenuBar(m_menuBar);
    for (const MenuEntry &entry : MainMenu()) {
        QMenu *parent = m_menus.value(entry.Menu);
        QAction *action = nullptr;
        if (entry.TheCommand == Command::Submenu) {
            auto *menu = new QMenu(entry.Caption, this);
            m_menus.insert(entry.Name, menu);
            action = parent ? parent->addMenu(menu) : m_menuBar->addMenu(menu);
            menu->setObjectName(entry.Name + u"Menu"_s);
        } else if (entry.TheCommand == Command::Separator) {
            action = parent->addSeparator();
        } else {
            action = parent->addAction(entry.Caption);
            action->setShortcut(QKeySequence(entry.Shortcut));
            connect(action, &QAction::triggered, this, [this, entry] { Act(entry); });
        }
        action->setObjectName(entry.Name);
        m_entries.insert(entry.Name, action);
    }
    for (const auto &name : {u"mnuTipOfTheDay"_s, u"mnuTallymereTutor"_s, u"mnuWelcomeScreen"_s})
        Entry(name)->setCheckable(true);
}

void frmMain::BuildToolbar()
{
    int index = 0;
    for (const ToolbarEntry &entry : MainToolbar()) {
        auto *button = findChild<QToolButton *>(u"Toolbar1Button%1"_s.arg(++index));
        button->setIcon(ThemedIcon(entry.Icon));
        button->setToolTip(entry.ToolTip);
        button->setAccessibleName(entry.ToolTip);
        button->setAccessibleDescription(entry.Hint);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setMinimumSize(LeastButton, LeastButton);
        button->setFocusPolicy(Qt::NoFocus); // the menu is the way for the keyboard
        connect(button, &QToolButton::clicked, this, [this, name = entry.ActsAs] { ActOn(name); });
        button->setMouseTracking(true);
        button->installEventFilter(this);
        m_hints.insert(button, entry.Hint);
    }
}

void frmMain::BuildStatusBar()
{
    int panel = 0;
    for (QLabel **label : {&staMain1, &staMain2, &staMain3}) {
        *label = new QLabel(this);
        (*label)->setObjectName(u"staMain%1"_s.arg(++panel));
        (*label)->setContentsMargins(8, 2, 8, 2);
        // The clock keeps its width; the others share the rest, whatever they say.
        (*label)->setSizePolicy(panel < 3 ? QSizePolicy::Ignored : QSizePolicy::Minimum, QSizePolicy::Preferred);
        ui.staMainLayout->addWidget(*label, panel < 3 ? 1 : 0);
    }
}

/// The hint label has room for the longest hint, the status panels for the longest date and time, and the list for
/// its lines, so that nothing jumps when a text changes.
void frmMain::ReserveSpace()
{
    QLabel &hint = *ui.lblToolbar;
    hint.setMinimumWidth(LineCharacters * hint.fontMetrics().averageCharWidth());
    const int edge = 2 * (hint.margin() + hint.frameWidth());
    const int width = qMax(ui.Toolbar1->width(), hint.minimumWidth()) - edge;
    int height = 0;
    for (const ToolbarEntry &entry : MainToolbar())
        height = qMax(
            height, hint.fontMetrics().boundingRect(QRect(0, 0, width, 10000), Qt::TextWordWrap, entry.Hint).height());
    hint.setMinimumHeight(height + edge);

    for (const auto &[panel, longest] : {std::pair{staMain1, u"Current Pay Period: September 30, 2004"_s},
                                         {staMain2, u"Wednesday  September 30, 2004"_s},
                                         {staMain3, u"00:00:00 AM"_s}}) {
        QLabel widest(longest);
        widest.setFont(panel->font());
        widest.setContentsMargins(panel->contentsMargins());
        panel->setMinimumWidth(widest.sizeHint().width());
    }

    ListBox &list = *ui.lstBudgetState;
    const int lines = int(BudgetStateLines().size());
    const int least = list.fontMetrics().height() + LeastLinePadding;
    list.setMinimumSize(LineCharacters * list.fontMetrics().averageCharWidth(),
                        LeastLines * least + 2 * list.frameWidth());
    for (int line = 0; line < list.count(); ++line)
        list.item(line)->setSizeHint(QSize(0, qMax(least, qMin(HighestLine, list.viewport()->height() / lines))));
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    Window::resizeEvent(event);
    ReserveSpace();
}

void frmMain::changeEvent(QEvent *event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        ReserveSpace();
}

void frmMain::Load()
{
    InitializeVariables();
    ensurePolished();
    // The toolkit alone would open it at two thirds of a small screen at most.
    resize(sizeHint().boundedTo(screen()->availableSize() - QSize(0, TitleBarHeight)).expandedTo(minimumSizeHint()));
    Entry(u"mnuFinanceMathCalculator"_s)->setEnabled(!State.MathCalculatorMissing);
    TheWindows.Unload(WindowName::frmSplash);
    TheDesk.Hourglass(false);
    StandLeftOfTheTutor();
    Timer1.start();
}

/// Directly left of the tutor's window, which this loads whether or not the tutor is on; on a small screen as far left
/// as it goes, since a window whose left side is not to be seen can't be worked with, and at its top, so that the tutor
/// covers as little of it as can be.
void frmMain::StandLeftOfTheTutor()
{
    const QRect room = screen()->availableGeometry();
    const int left = TheWindows.Touch(WindowName::frmTallymereTutor).x() - width();
    const int spare = left < room.left() ? 0 : room.height() - TitleBarHeight - height();
    move(qMax(room.left(), left), room.top() + qMax(0, spare / 2));
}

void frmMain::Activate()
{
    ReadOptions();
    staMain1->setText(u"Current Pay Period: "_s + FormatLongDate(State.CurrentPayPeriod));
    staMain2->setText(Format(TheDesk.Now().date(), DateFormat::Weekday));
    FillBudgetState();
    if (State.WelcomeLevelPending) {
        State.WelcomeLevelPending = false;
        if (State.WelcomeLevel == 0)
            ActOn(u"mnuStartBudget"_s);
        else if (State.WelcomeLevel == 1)
            ActOn(u"mnuHowDoI"_s);
    }
    if (!State.CurrentPayPeriodConfirmed)
        ActOn(u"mnuOptionsSetCurrentPayPeriod"_s);
}

/// An option that is neither 0 nor 1 leaves its check mark, and the tutor's timer, as they are.
void frmMain::ReadOptions()
{
    const auto check = [this](const QString &entry, const QString &option) {
        const double value = OptionValue(option);
        if (value == 0 || value == 1)
            Entry(entry)->setChecked(value == 1);
        return value;
    };
    check(u"mnuTipOfTheDay"_s, ShowTips);
    const double tutor = check(u"mnuTallymereTutor"_s, ShowTutor);
    if (tutor == 0)
        tmrAutoTutor.stop();
    else if (tutor == 1 && !tmrAutoTutor.isActive() && !WindowField::TutorIsFrozen())
        tmrAutoTutor.start(); // also while a window that stopped it is still open
    check(u"mnuWelcomeScreen"_s, ShowWelcome);
}

void frmMain::FillBudgetState()
{
    ui.lstBudgetState->Clear();
    for (const StateEntry &entry : BudgetStateLines()) {
        ui.lstBudgetState->AddItem({});
        ShowStateLine(*ui.lstBudgetState->item(ui.lstBudgetState->count() - 1), entry);
    }
    ReserveSpace();
}

/// The line of the open store list alone; the others wait for the next activation.
void frmMain::ShowCurrentList()
{
    if (QListWidgetItem *line = ui.lstBudgetState->item(CurrentListLine)) // there is none before the first activation
        ShowStateLine(*line, BudgetStateLines()[CurrentListLine]);
}

void frmMain::ActOn(const QString &entryName)
{
    const QList<MenuEntry> &menu = MainMenu();
    const auto entry =
        std::find_if(menu.begin(), menu.end(), [&](const MenuEntry &one) { return one.Name == entryName; });
    Q_ASSERT_X(entry != menu.end(), "ActOn", qPrintable(entryName));
    Act(*entry);
}

void frmMain::Act(const MenuEntry &entry)
{
    switch (entry.TheCommand) {
    case Command::Open: OpenWindowWithTutor(entry.TutorPage, entry.Window); break;
    case Command::Exit: LeaveProgram(); break;
    case Command::SavingsForecast: mnuBudgetSavingsForecast_Click(entry); break;
    case Command::OpenStoreList: mnuShopperOpenStoreList_Click(entry); break;
    case Command::MathCalculator: mnuFinanceMathCalculator_Click(entry); break;
    case Command::SetCurrentPayPeriod: mnuOptionsSetCurrentPayPeriod_Click(entry); break;
    case Command::TipOfTheDay:
        FlipOption(entry.Name, ShowTips, u"Options - Tip of the Day"_s,
                   u"Tip of the Day will be displayed the next time you start Tallymere"_s,
                   u"Tip of the Day will not be displayed the next time you start Tallymere"_s);
        break;
    case Command::WelcomeScreen:
        FlipOption(entry.Name, ShowWelcome, u"Options - Welcome Screen"_s,
                   u"The Welcome screen will be displayed the next time you start Tallymere"_s,
                   u"The Welcome screen will not be displayed the next time you start Tallymere"_s);
        break;
    case Command::Tutor: mnuTallymereTutor_Click(); break;
    case Command::Search: mnuHelpSearch_Click(); break;
    case Command::StartRoute: StartRoute(entry); break;
    case Command::PrintCurrentList: mnuShopperPrintCurrentList_Click(entry); break;
    case Command::Submenu:
    case Command::Separator: break;
    }
}

void frmMain::ShowTutorPageIfRunning(int page)
{
    // The timer is the test and not the check mark: a window that rests the timer keeps its own page standing.
    if (page > 0 && tmrAutoTutor.isActive())
        Q_EMIT TheTutorRequests.PageWanted(page);
}

void frmMain::OpenWindowWithTutor(int tutorPage, const QString &window)
{
    ShowTutorPageIfRunning(tutorPage);
    TheWindows.Show(window);
}

void frmMain::mnuBudgetSavingsForecast_Click(const MenuEntry &entry)
{
    TheDesk.Beep();
    if (ShowMessage(u"Do you wish to print the Savings Forecast?"_s, u"Savings Forecast"_s, Icon::Question,
                    Buttons::YesNo) == Answer::Yes)
        State.PrintSavingsForecast = true;
    OpenWindowWithTutor(entry.TutorPage, entry.Window);
}

void frmMain::mnuOptionsSetCurrentPayPeriod_Click(const MenuEntry &entry)
{
    ShowTutorPageIfRunning(entry.TutorPage);
    WindowField::Today().setText(Format(TheDesk.Now().date(), DateFormat::Weekday));
    TheWindows.ShowModal(entry.Window);
}

void frmMain::mnuFinanceMathCalculator_Click(const MenuEntry &entry)
{
    ShowTutorPageIfRunning(entry.TutorPage);
    ResumeNext([] { TheDesk.BringCalculatorForward(); },
               [](const RuntimeError &error) {
                   if (error.Number == RuntimeError::InvalidProcedureCall) // it does not run any more
                       IgnoreErrors([] { TheDesk.StartCalculator(); });
               });
}

void frmMain::mnuShopperOpenStoreList_Click(const MenuEntry &entry)
{
    const auto open = [&] {
        ShowTutorPageIfRunning(entry.TutorPage);
        static const QRegularExpression separators(u"[\\\\/]"_s);
        QString chosen;
        do {
            chosen =
                TheDesk.AskFile({FileQuestion::Open, u"Store List Files (*.lst)|*.lst"_s, State.StoresDirectory, {}});
            chosen = chosen.section(separators, -1);
        } while (!AcceptsListName(chosen, u"Open Store File"_s));
        // A cancelled dialog goes on with the old name, which an edited settings file may give with folders.
        State.CurrentStoreFile = chosen.isEmpty() ? State.CurrentStoreFile.section(separators, -1) : chosen;
        WindowField::StoreFile().setText(State.CurrentStoreFile);
        ShowCurrentList();
        InputCurrentShoppingList();
    };
    ResumeNext(open, [](const RuntimeError &error) { ShowMessage(error.Text(), u"Open Store File"_s, Icon::Stop); });
}

void frmMain::mnuShopperPrintCurrentList_Click(const MenuEntry &entry)
{
    ShowTutorPageIfRunning(entry.TutorPage);
    // A list beyond money is told of and not printed; its own window greys the button. A printer's error is no slip.
    bool priced = false;
    TrapUnknownError(u"Current Shopping List"_s, [&] {
        PriceCurrentList();
        priced = true;
    });
    if (priced)
        PrintShoppingList();
}

void frmMain::FlipOption(const QString &entryName, const QString &option, const QString &title, const QString &on,
                         const QString &off)
{
    const bool turnOn = Entry(entryName)->isChecked(); // choosing the entry has flipped its mark
    SaveOption(option, turnOn);
    ShowMessage(turnOn ? on : off, title, Icon::Information);
}

void frmMain::mnuTallymereTutor_Click()
{
    const bool turnOn = Entry(u"mnuTallymereTutor"_s)->isChecked();
    if (turnOn) {
        Q_EMIT TheTutorRequests.ReleaseWanted(); // whoever turns the tutor on wants its pages to come
        tmrAutoTutor.start();
    } else {
        tmrAutoTutor.stop();
        RememberedTutorTimer.clear(); // or the end of a window would start it again
        TheWindows.Unload(WindowName::frmTallymereTutor);
    }
    SaveOption(ShowTutor, turnOn);
    ShowMessage(turnOn ? u"Tallymere Tutor will be displayed automatically in 10 seconds."_s
                       : u"Tallymere Tutor will not be displayed automatically. To get help from the Tutor again "
                         u"recheck this option or click Help->How Do I...?"_s,
                u"Options - Tallymere Tutor"_s, Icon::Information);
}

void frmMain::mnuHelpSearch_Click()
{
    // Another letter case than State.HelpFile has, which is harmless: files are found in any.
    TheDesk.ShowHelp({TheDesk.ProgramFolder() + u"\\HELP\\budget help.hlp"_s, 0});
}

/// The guide's title chooses its route, and is the entry's caption. Each entry begins its own at the first panel: one
/// that was left half-way would be taken up instead, under the wrong title.
void frmMain::StartRoute(const MenuEntry &entry)
{
    State.GuidedSetupActive = false;
    State.GuidedSetupStep = 0;
    TheWindows.Touch(entry.Window).setWindowTitle(QString(entry.Caption).remove(u'&'));
    TheWindows.Show(entry.Window);
}

void frmMain::lstBudgetState_Click()
{
    const int line = ui.lstBudgetState->ListIndex();
    if (line >= 0)
        TheWindows.Show(BudgetStateLines()[line].Window);
}

void frmMain::cmdGettingStarted_Click()
{
    m_menus[u"mnuGettingStarted"_s]->popup(QCursor::pos());
}

void frmMain::Timer1_Timer()
{
    State.ClockTime = TheDesk.Now().time();
    staMain3->setText(FormatClock(State.ClockTime));
}

void frmMain::tmrAutoTutor_Timer()
{
    TutorPage = TutorPage >= LastTimedTutorPage ? 1 : qint16(TutorPage + 1);
    Q_EMIT TheTutorRequests.PageWanted(TutorPage);
}

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    // The pointer must have moved: one that lies still while a window closes over it has asked for nothing.
    if (event->type() == QEvent::MouseMove && m_hints.contains(watched))
        ui.lblToolbar->setText(m_hints.value(watched)); // never cleared: leaving the toolbar leaves the last hint
    return Window::eventFilter(watched, event);
}

void frmMain::Unload()
{
    LeaveProgram();
}
