// The window of the creditors: bills that fall due on a fixed day of every month.
#pragma once

#include "commitments/ListPanel.h"
#include "ui_frmCreditors.h"

class frmCreditors : public ListWindow<Ui::frmCreditors>
{
public:
    frmCreditors();
};
