#include "guidance/frmWelcome.h"

#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "guidance/TeacherPicture.h"
#include "platform/controls/Icons.h"
#include "platform/controls/Theme.h"
#include "platform/windows/WindowRegister.h"

#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

// Places on the stage, in twips.
constexpr QRectF TeachersPlace{158, 150, 2160, 2700};
constexpr QPointF TeacherOutside{8445, 150};
constexpr double RightOfTeacher = 2520;
constexpr QSizeF PictureSize{1700, 1700};
constexpr QPointF TipPictureFrom{8160, 5280};
constexpr QPointF TipPictureTo{2992, 1480}; // 38 steps of -136 and -100: the first place above 1,560
constexpr QPointF FirstHint{RightOfTeacher, 360};
constexpr QPointF HintBelow{2928, 4440}; // 408 steps of 10, each 1 to the right
constexpr QPointF HintBackAbove{2928, 360};
constexpr QPointF FreezeHintFrom{8400, 4680};
constexpr QPointF FreezeHintTo{2280, 4680};
constexpr QPointF BrowseHintFrom{8400, 4080};
constexpr QPointF BrowseHintTo{2640, 4080};

// The key as this window spells it, with a small "at"; the store keeps keys without regard to case.
const QString ShowWelcomeKey = u"Show Welcome at Startup"_s;

} // namespace

frmWelcome::frmWelcome()
{
    StyleTitlePanel(ui.pnlWelcomeTitle);
    QFont large = ui.Label1->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    ui.Label1->setFont(large);
    PrepareStages();
    PrepareTour();

    const std::array levels{ui.lblLevelSelection0, ui.lblLevelSelection1, ui.lblLevelSelection2, ui.lblLevelSelection3};
    const std::array icons{u"getting-started"_s, u"how-do-i"_s, u"search-for-help"_s, u"tallymere"_s};
    for (int level = 0; level < int(levels.size()); ++level) {
        QToolButton *label = levels[level];
        label->setIcon(ThemedIcon(icons[level]));
        OnClick(label, [this, level] { ChooseLevel(level); });
        OnEnter(label, [label] { label->click(); });
    }
    connect(ui.chkShowDialog, &QCheckBox::toggled, this,
            [](bool on) { TheDesk.SaveSetting(ShowWelcomeKey, on ? u"1"_s : u"0"_s); });
    for (QPushButton *button :
         {ui.cmdGoToTallymere1, ui.cmdGoToTallymere2, ui.cmdGoToTallymere3, ui.cmdExit1, ui.cmdExit2, ui.cmdExit3})
        OnClick(button, [] { TheWindows.Show(WindowName::frmSplash); });
    OnClick(ui.cmdNext1, [this] { StartStep(1); });
    OnClick(ui.cmdNext2, [this] { StartStep(2); });
    OnClick(ui.cmdNext3, [this] { StartStep(3); });
}

void frmWelcome::PrepareStages()
{
    pnlTallymereTutor = new QWidget;
    pnlTallymereTutor->setObjectName(u"pnlTallymereTutor"_s);
    imgTallymereTutor = new Picture(pnlTallymereTutor);
    imgTallymereTutor->setObjectName(u"imgTallymereTutor"_s);
    imgTallymereTutor->Show(TeacherPicture(Teacher::Pointing));
    imgTallymereTutor->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *layout = new QVBoxLayout(pnlTallymereTutor);
    layout->setContentsMargins({});
    layout->addWidget(imgTallymereTutor);

    for (Stage *panel : {ui.pnlWelcome, ui.pnlGettingStartedWithBudget, ui.pnlHowToDo})
        panel->LeaveFreeAtLeft(RightOfTeacher);
    ToFront(ui.pnlWelcome);

    const auto place = [](Stage *stage, Picture *picture, const QIcon &icon, const QPointF &topLeft) {
        picture->Show(icon);
        stage->Place(picture, {topLeft, PictureSize});
    };
    place(ui.pnlTipOfTheDay, ui.imgTipOfTheDay, ThemedIcon(u"tip-of-the-day"_s), TipPictureTo);
    ui.pnlTipOfTheDay->PlaceText(ui.Label4, {RightOfTeacher, 500});
    ui.pnlTipOfTheDay->PlaceText(ui.Label5, {RightOfTeacher, 3700});

    place(ui.pnlBudgetTutor, ui.imgFreeze, TeacherPicture(Teacher::Frozen), {4700, 1400});
    ui.pnlBudgetTutor->PlaceText(ui.Label7, FirstHint);
    ui.pnlBudgetTutor->PlaceText(ui.Label6, {RightOfTeacher, 3500});
    ui.pnlBudgetTutor->PlaceText(ui.Label8, FreezeHintTo);

    place(ui.pnlSearchForHelpOn, ui.imgSearchForHelpOn, ThemedIcon(u"search-for-help"_s), {4700, 1200});
    ui.pnlSearchForHelpOn->PlaceText(ui.Label9, FirstHint);
    ui.pnlSearchForHelpOn->PlaceText(ui.Label11, {RightOfTeacher, 3000});
    ui.pnlSearchForHelpOn->PlaceText(ui.Label10, BrowseHintTo);

    place(ui.pnlHowDoI, ui.imgHowDoI, ThemedIcon(u"how-do-i"_s), {2900, 1300});
    place(ui.pnlHowDoI, ui.imgFreezeHow, TeacherPicture(Teacher::Frozen), {5900, 1300});
    ui.pnlHowDoI->PlaceText(ui.Label12, FirstHint);
    ui.pnlHowDoI->PlaceText(ui.Label13, {RightOfTeacher, 3400});

    constexpr QRectF buttons{300, 4950, 8100, 500};
    ui.pnlTipOfTheDay->Place(ui.tipOfTheDayButtons, buttons);
    ui.pnlBudgetTutor->Place(ui.budgetTutorButtons, {300, 5150, 8100, 400});
    ui.pnlSearchForHelpOn->Place(ui.searchForHelpOnButtons, buttons);
    ui.pnlHowDoI->Place(ui.howDoIButtons, buttons);
}

void frmWelcome::PrepareTour()
{
    const auto show = [](QWidget *piece) { return [piece] { piece->show(); }; };
    const auto end = [this](const QList<QPushButton *> &buttons) {
        return [this, buttons] { MakeAvailable(buttons); };
    };
    m_tour = {{
        {u"Tip of the Day"_s,
         ui.pnlTipOfTheDay,
         &tmrTipOfTheDay,
         {{1,
           [this] {
               TeacherComesIn();
               ui.imgTipOfTheDay->show();
               ui.pnlTipOfTheDay->Glide(ui.imgTipOfTheDay, TipPictureFrom, TipPictureTo);
           }},
          {2, show(ui.Label4)},
          {7, show(ui.Label5)},
          {12, end({ui.cmdNext1, ui.cmdExit1})}}},
        {u"Tallymere Tutor"_s,
         ui.pnlBudgetTutor,
         &tmrBudgetTutor,
         {{1, [this] { TeacherComesIn(); }},
          {2, show(ui.Label7)},
          {8, [this] { LetTheSampleShow(); }},
          {10, [this] { LetTheHintFreeze(); }},
          {15, show(ui.Label6)},
          {20, end({ui.cmdNext2, ui.cmdExit2})}}},
        {u"Search For Help On..."_s,
         ui.pnlSearchForHelpOn,
         &tmrSearchForHelpOn,
         {{1,
           [this] {
               TeacherComesIn();
               ui.Label9->show();
               ui.imgSearchForHelpOn->show();
           }},
          {7,
           [this] {
               ui.Label10->show();
               ui.pnlSearchForHelpOn->Glide(ui.Label10, BrowseHintFrom, BrowseHintTo);
           }},
          {14, show(ui.Label11)},
          {19, end({ui.cmdNext3, ui.cmdExit3})}}},
        {u"How Do I ...?"_s,
         ui.pnlHowDoI,
         &tmrHowDoI,
         {{1,
           [this] {
               TeacherComesIn();
               ui.Label12->show();
           }},
          {5, show(ui.imgHowDoI)},
          {10, show(ui.Label13)},
          {12, show(ui.imgFreezeHow)},
          {17, end({ui.cmdGoToTallymere3})}}},
    }};
    const std::array names{u"tmrTipOfTheDay"_s, u"tmrBudgetTutor"_s, u"tmrSearchForHelpOn"_s, u"tmrHowDoI"_s};
    for (int i = 0; i < int(m_tour.size()); ++i) {
        TourStep &step = m_tour[i];
        step.Timer->setParent(this);
        step.Timer->setObjectName(names[i]);
        step.Timer->setInterval(1000);
        connect(step.Timer, &QTimer::timeout, this, [this, &step] { Tick(step); });
    }
    for (QWidget *piece : std::initializer_list<QWidget *>{
             ui.imgTipOfTheDay, ui.Label4,  ui.Label5,  ui.cmdNext1,         ui.cmdExit1, ui.imgFreeze,
             ui.Label6,         ui.Label7,  ui.Label8,  ui.cmdNext2,         ui.cmdExit2, ui.imgSearchForHelpOn,
             ui.Label9,         ui.Label10, ui.Label11, ui.cmdNext3,         ui.cmdExit3, ui.imgHowDoI,
             ui.imgFreezeHow,   ui.Label12, ui.Label13, ui.cmdGoToTallymere3})
        piece->hide(); // until its tick
}

void frmWelcome::Load()
{
    ui.chkShowDialog->setChecked(true); // whoever sees this window has the option on
}

void frmWelcome::Unload()
{
    if (m_sampleShows) // else it would stand there alone and keep the program alive
        TheWindows.Unload(WindowName::frmTallymereTutor);
}

void frmWelcome::ChooseLevel(int level)
{
    State.WelcomeLevel = level;
    State.WelcomeLevelPending = true;
    switch (level) {
    case 0:
        setWindowTitle(u"Getting Started With Tallymere"_s);
        ToFront(ui.pnlGettingStartedWithBudget);
        FocusOn(ui.cmdGoToTallymere1);
        break;
    case 1:
        ToFront(ui.pnlHowToDo);
        FocusOn(ui.cmdGoToTallymere2);
        break;
    case 2: StartStep(0); break;
    default: TheWindows.Show(WindowName::frmSplash); break;
    }
}

/// The panel, and in front of it the teacher.
void frmWelcome::ToFront(Stage *panel)
{
    ui.panels->setCurrentWidget(panel);
    pnlTallymereTutor->setParent(panel);
    panel->Place(pnlTallymereTutor, TeachersPlace);
    pnlTallymereTutor->raise();
    pnlTallymereTutor->show();
}

void frmWelcome::StartStep(int step)
{
    setWindowTitle(m_tour[step].Title);
    ui.panels->setCurrentWidget(m_tour[step].Panel);
    m_tour[step].Timer->start();
}

void frmWelcome::Tick(TourStep &step)
{
    ++step.Ticks;
    for (const Moment &moment : step.Moments)
        if (moment.Tick == step.Ticks)
            moment.Happens();
    if (step.Ticks == step.Moments.last().Tick)
        step.Timer->stop();
}

void frmWelcome::TeacherComesIn()
{
    auto *stage = static_cast<Stage *>(ui.panels->currentWidget());
    ToFront(stage);
    stage->Glide(pnlTallymereTutor, TeacherOutside, TeachersPlace.topLeft());
}

/// The hint makes room and points down to where the tutor's window stands.
void frmWelcome::LetTheSampleShow()
{
    ui.pnlBudgetTutor->Glide(ui.Label7, FirstHint, HintBelow, [this] {
        m_sampleShows = true;
        TheWindows.Show(WindowName::frmTallymereTutor);
    });
}

void frmWelcome::LetTheHintFreeze()
{
    ui.pnlBudgetTutor->Glide(ui.Label7, HintBelow, HintBackAbove, [this] {
        TheWindows.Unload(WindowName::frmTallymereTutor);
        m_sampleShows = false;
        ui.Label8->show();
        ui.pnlBudgetTutor->Glide(ui.Label8, FreezeHintFrom, FreezeHintTo);
        ui.imgFreeze->show();
    });
}

void frmWelcome::MakeAvailable(const QList<QPushButton *> &buttons)
{
    for (QPushButton *button : buttons)
        button->show();
    FocusOn(buttons.first());
}
