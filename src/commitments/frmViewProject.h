// The installments of one project with their running total, on the screen and, if the user has asked for it, on paper.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmViewProject.h"

/// Not one of the windows that make the tutor rest.
class frmViewProject : public Window<Ui::frmViewProject>
{
public:
    frmViewProject();
    void Activate() override;

private:
    void FillGrid();
};
