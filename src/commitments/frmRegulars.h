// The window of the regular items: amounts that are spent in every pay period.
#pragma once

#include "commitments/ListPanel.h"
#include "ui_frmRegulars.h"

class frmRegulars : public ListWindow<Ui::frmRegulars>
{
public:
    frmRegulars();

protected:
    void EntrySaved() override;
};
