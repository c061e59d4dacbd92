// The window of the projects: savings goals whose installments come from the savings forecast.
#pragma once

#include "commitments/ListPanel.h"
#include "ui_frmProjects.h"

class frmProjects : public ListWindow<Ui::frmProjects>
{
public:
    frmProjects();

protected:
    void AddClicked() override;
    void RowClicked() override;
    void EntrySaved() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void UpdateNewButton();
    void PickCompletionDate();
    void TakePickedDate(const QString &date);
    void TellHowToPick();
    void ViewProject();

    bool AddingProject = false; ///< from the add button to the commit
};
