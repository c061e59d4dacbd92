// The guide of a newcomer, one panel after the other: a first budget from the household's incomes and bills, or the
// first steps in shopping and in paying off bills, which it leaves to the real work windows and takes up again when
// they close.
#pragma once

#include "guidance/BudgetSetup.h"
#include "platform/controls/OptionGroup.h"
#include "platform/windows/Window.h"
#include "ui_frmGettingStarted.h"

class frmGettingStarted : public Window<Ui::frmGettingStarted>
{
public:
    frmGettingStarted();
    void Load() override;
    void Activate() override;
    void Unload() override;

    /// What has been entered so far.
    const BudgetSetup &Setup() const { return m_setup; }
    /// The panel in front.
    QWidget *Panel() const { return ui.stkPanels->currentWidget(); }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// One way through the panels.
    struct Route {
        QString Title;
        QList<QWidget *> Panels;
    };

    void Style();
    void ShowPictures();
    void ReserveRoom();
    void EnterGoesOn();
    void BringToFront(QWidget *panel);
    void ShowStep();
    void Change(const std::function<void(BudgetSetup &)> &steps);

    bool ValidateTakeHomePay();
    bool ValidateSetupCreditor();
    bool ValidateSetupRegular();
    void cmdNextBS1_Click();
    void cmdNextBS2_Click();
    void cmdNextBS3_Click();
    void cmdNextBS5_Click();
    void cmdNextBS6_Click();
    void cmdNextBS7_Click();
    void cmdNextBS8_Click();
    void cmdSaveBS11_Click();
    void optPayFrequency_Click(int index);
    void PressedAgain(int index);

    void AskForIncome();
    void AskForCreditor();
    void AskForRegular();
    void ShowExpenseSummary();
    void ShowOverheadSummary();
    void ShowFrequencyHint();
    void WorkIn(const QString &window, qint32 route, qint16 step, int tutorPage);

    // As at the start in each instance, which a load brings into being.
    QList<Route> m_routes;
    BudgetSetup m_setup;
    int m_roomFor = 0; ///< the width in which the panels were measured last
    bool PayOptionClicked = false;
    bool m_tutorShown = false; ///< a page of it, on a route through work windows
    bool m_designing = true;   // the design's own selection is no click
    OptionGroup optPayFrequencyWE;
    OptionGroup optPayFrequency;
};
