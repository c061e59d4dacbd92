// The pages of the tutor: the topic that each of them shows beside its text.
#pragma once

#include <QString>

struct TutorPageEntry {
    QString Panel; ///< the topic's panel in the tutor's window
    QString Icon;  ///< the picture on it
    QString Topic; ///< in plain words
};

/// A page, 1 to 26. They stand in the alphabetical order of their topics, the two steps of the shopping route after
/// them. Raises error 9 (Subscript out of range) for any other number.
const TutorPageEntry &TutorPage(int page);
