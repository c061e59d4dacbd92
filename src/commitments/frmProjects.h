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
    void AddClicked() override;
    void RowClicked() override;
    void EntrySaved() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void UpdateNewButton();
    void PickCompletionDate();
    void txtProjectCompletionDate_MouseMove();
    void lstProjects_DblClick();

    std::unique_ptr<Ui::frmProjects> ui;
    bool AddingProject = false; ///< from the add button to the commit
};
