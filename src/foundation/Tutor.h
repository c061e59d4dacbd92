// The door to the tutor for windows of lower floors: whoever wants one of its pages emits PageWanted, and the tutor's
// window, loaded where it is not, shows the page without taking the user from his work.
#pragma once

#include <QObject>
#include <QSet>

class TutorRequests : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    /// `page` is a page, 1 to 26, of State.TutorInstructions.
    void PageWanted(int page);
    /// The user wants pages to come again: a tutor that is frozen, if there is one, shows that it goes on.
    void ReleaseWanted();
};
inline TutorRequests TheTutorRequests;

/// Of the tutor's window: 1 after a click on the teacher, until the next one; else 0.
inline constexpr char TutorFrozenProperty[] = "TutorFrozen";

/// The names of the windows that stopped the tutor's running timer when they were loaded and start it again when they
/// end.
inline QSet<QString> RememberedTutorTimer;
