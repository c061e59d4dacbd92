// The title of the program and the button that goes on to the main window.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmSplash;
}

class frmSplash : public Form
{
    Q_OBJECT
public:
    frmSplash();
    ~frmSplash() override;
    void Load() override;

private:
    void cmdContinue_Click();
    std::unique_ptr<Ui::frmSplash> ui;
};
