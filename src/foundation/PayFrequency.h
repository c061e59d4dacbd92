// How often the user can be paid.
#pragma once

#include "foundation/State.h"

/// One pay frequency that can be chosen, in order of option from 0.
struct PayFrequencyOption {
    qint16 Frequency = 0;
    QString WagesCaption; ///< what the wage calculator is titled then
    QString DatesWindow;  ///< asks for what the frequency needs to know beyond itself; empty: nothing
};
const QList<PayFrequencyOption> &PayFrequencyOptions();
/// The option of a frequency, -1 where there is none.
int OptionOfPayFrequency(qint16 frequency);
