// The installments of one project with their running total, on the screen and, if the user has asked for it, on paper.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmViewProject;
}

/// Not one of the windows that make the tutor rest.
class frmViewProject : public Form
{
    Q_OBJECT
public:
    frmViewProject();
    ~frmViewProject() override;
    void Activate() override;

private:
    void grdViewProject_GotFocus();

    std::unique_ptr<Ui::frmViewProject> ui;
};
