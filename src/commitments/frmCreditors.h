// The window of the creditors: bills that fall due on a fixed day of every month.
#pragma once

#include "commitments/ListPanel.h"

#include <memory>

namespace Ui {
class frmCreditors;
}

class frmCreditors : public ListPanel
{
    Q_OBJECT
public:
    frmCreditors();
    ~frmCreditors() override;

private:
    std::unique_ptr<Ui::frmCreditors> ui;
};
