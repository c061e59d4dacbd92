// The first window that a new user sees: it asks where the user stands, and shows what that user needs first. Nothing
// of it touches a file or the budget.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmWelcome.h"

#include <QTimer>
#include <array>

class frmWelcome : public Window<Ui::frmWelcome>
{
public:
    frmWelcome();
    void Load() override;
    void Unload() override;
    bool ClosesOnEscape() const override { return false; } // that would end the program

private:
    /// What a tour shows at one of its timer's ticks.
    struct Moment {
        qint16 Tick;
        std::function<void()> Happens;
    };
    /// A step of the tour: a panel that builds up, a tick of its timer a second. The timer ends with the last moment.
    struct TourStep {
        QString Title;
        Stage *Panel;
        QTimer *Timer;
        QList<Moment> Moments;
        qint16 Ticks = 0;
    };

    void PrepareStages();
    void PrepareTour();
    void ChooseLevel(int level);
    void ToFront(Stage *panel);
    void StartStep(int step);
    void Tick(TourStep &step);
    void TeacherComesIn();
    void LetTheSampleShow();
    void LetTheHintFreeze();
    void MakeAvailable(const QList<QPushButton *> &buttons);

    Picture *imgTallymereTutor;
    QWidget *pnlTallymereTutor;
    QTimer tmrTipOfTheDay;
    QTimer tmrBudgetTutor;
    QTimer tmrSearchForHelpOn;
    QTimer tmrHowDoI;
    std::array<TourStep, 4> m_tour;
    bool m_sampleShows = false;
};
