// The list of tasks: a click on one puts the tutor's page of it on the screen and lets it stand there.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmHowDoI.h"

class frmHowDoI : public Window<Ui::frmHowDoI>
{
public:
    frmHowDoI();
    void Load() override;
    void Unload() override;

private:
    void GiveTheTopicsTheirRoom();
    void ShowPanel(QWidget &panel, QWidget &wayBack);
    void lblHowDoI_Click(int index);

    bool TopicChosen = false;
};
