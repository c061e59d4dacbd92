// A window in which the user works. The tutor must not jump at the user there: while the window is loaded, the tutor's
// timer rests.
#pragma once

#include "platform/windows/Form.h"

class WorkWindow : public Form
{
    Q_OBJECT
public:
    /// Windows with a load or unload event of their own call these first.
    void Load() override;
    void Unload() override;

private:
    bool RememberedTutorTimer = false;
};
