// Nobody answers a box or a modal window that a test did not expect: it would stand for ever. The watchdog closes it
// after a while and fails the test. A test that hangs otherwise is ended by the test library, which the program's main
// tells how long that may take.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

class Watchdog : public QObject
{
    Q_OBJECT
public:
    /// A window may be modal for so many milliseconds.
    explicit Watchdog(int limit);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    int m_limit;
    QPointer<QWidget> m_modal;
    QElapsedTimer m_since;
};
