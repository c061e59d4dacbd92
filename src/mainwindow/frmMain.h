// The hub: the State of the Budget, the toolbar, the menus, the clock and the tutor's timer. It opens every window.
#pragma once

#include "mainwindow/MainMenu.h"
#include "mainwindow/TutorPause.h"
#include "platform/windows/Window.h"
#include "ui_frmMain.h"

#include <QHash>
#include <QTimer>

class QAction;
class QLabel;
class QMenu;
class QMenuBar;

class frmMain : public Window<Ui::frmMain>
{
public:
    frmMain();
    void Load() override;
    void Activate() override;
    void Unload() override;
    bool StandsBesideItsCaller() const override { return false; }
    bool ClosesOnEscape() const override { return false; } // that would end the program

    QAction *Entry(const QString &name) const { return m_entries.value(name); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildStatusBar();
    void ReserveSpace();
    void StandLeftOfTheTutor();
    void ReadOptions();
    void FillBudgetState();
    void ShowCurrentList();
    /// Whether what the entry opens exists. One whose window does not stays grey.
    void Act(const MenuEntry &entry);
    void ActOn(const QString &entryName);

    void ShowTutorPageIfRunning(int page);
    void OpenWindowWithTutor(int tutorPage, const QString &window);
    void mnuBudgetSavingsForecast_Click(const MenuEntry &entry);
    void mnuShopperOpenStoreList_Click(const MenuEntry &entry);
    void mnuShopperPrintCurrentList_Click(const MenuEntry &entry);
    void mnuFinanceMathCalculator_Click(const MenuEntry &entry);
    void mnuOptionsSetCurrentPayPeriod_Click(const MenuEntry &entry);
    void mnuTallymereTutor_Click();
    void FlipOption(const QString &entryName, const QString &option, const QString &title, const QString &on,
                    const QString &off);
    void mnuHelpSearch_Click();
    void StartRoute(const MenuEntry &entry);
    void lstBudgetState_Click();
    void cmdGettingStarted_Click();
    void Timer1_Timer();
    void tmrAutoTutor_Timer();

    QMenuBar *m_menuBar = nullptr;
    QHash<QString, QAction *> m_entries;
    QHash<QString, QMenu *> m_menus;
    QHash<QObject *, QString> m_hints;
    QLabel *staMain1 = nullptr;
    QLabel *staMain2 = nullptr;
    QLabel *staMain3 = nullptr;
    QTimer Timer1;
    QTimer tmrAutoTutor;
    TutorPause m_tutorPause{tmrAutoTutor};
    qint16 TutorPage = 0;
};
