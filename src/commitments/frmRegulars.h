// The window of the regular items: amounts that are spent in every pay period.
#pragma once

#include "commitments/ListPanel.h"

#include <memory>

namespace Ui {
class frmRegulars;
}

class frmRegulars : public ListPanel
{
    Q_OBJECT
public:
    frmRegulars();
    ~frmRegulars() override;

protected:
    void EntrySaved() override;

private:
    std::unique_ptr<Ui::frmRegulars> ui;
};
