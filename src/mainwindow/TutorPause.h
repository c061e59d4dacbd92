// While one of certain windows is loaded, the tutor's timer stands still, so that its pages do not jump at the user.
#pragma once

#include <QTimer>

class TutorPause : public QObject
{
    Q_OBJECT
public:
    explicit TutorPause(QTimer &timer);

private:
    void Pause(const QString &window);
    void Resume(const QString &window);

    QTimer &m_timer;
};
