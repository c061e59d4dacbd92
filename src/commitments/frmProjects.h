// The window of the projects: savings goals whose installments come from the savings forecast.
#pragma once

#include "commitments/ListPanel.h"

#include <memory>

namespace Ui {
class frmProjects;
}

class frmProjects : public ListPanel
{
    Q_OBJECT
public:
    frmProjects();
    ~frmProjects() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void FillProjectList();
    void SaveAndReload();
    void DropUnsaved();
    void UpdateNewButton();
    void PickCompletionDate();
    void CommitEntry();
    void cmdListProjects_Click();
    void cmdAddProject_Click();
    void txtProjectCompletionDate_MouseMove();
    void cmdNew_Click();
    void lstProjects_Click();
    void lstProjects_DblClick();
    void cmdDeleteProject_Click();
    void cmdQuit_Click();

    std::unique_ptr<Ui::frmProjects> ui;
    bool m_unsaved = false;     ///< an entry was taken into the arrays and not yet into the file
    bool AddingProject = false; ///< from the add button to the commit
};
