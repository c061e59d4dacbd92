// Does the steps that TALLYMERE_STEPS names, parted by commas, each as soon as it can be done:
//   frmX.cmdY    clicks a button, by its name or its caption, or chooses a menu entry, of a window that is shown
//   messageBox   waits until a box or dialog of this name is shown
//   commit, quit what the desktop sends before and at the end of its session
// Then it writes "ready" to the standard output.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QSessionManager>
#include <QTimer>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

QWidget *Shown(const QString &name)
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && (widget->objectName() == name || widget->inherits(qPrintable(name))))
            return widget;
    return nullptr;
}

/// Whether the step could be done. It is queued, so that the hand is free again while a modal window waits.
bool Do(const QString &step)
{
    if (step == u"commit"_s) {
        Q_EMIT qGuiApp->commitDataRequest(*qApp->findChild<QSessionManager *>());
        return true;
    }
    if (step == u"quit"_s) {
        QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
        return true;
    }
    QWidget *window = Shown(step.section(u'.', 0, 0));
    const QString control = step.section(u'.', 1);
    if (!window || control.isEmpty())
        return window;
    if (auto *button = window->findChild<QAbstractButton *>(control))
        return QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
    for (QAbstractButton *button : window->findChildren<QAbstractButton *>())
        if (button->text() == control)
            return QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
    auto *entry = window->findChild<QAction *>(control);
    return entry && QMetaObject::invokeMethod(entry, "trigger", Qt::QueuedConnection);
}

class Hand : public QTimer
{
public:
    Hand() : QTimer(qApp)
    {
        callOnTimeout(this, [this] {
            if (!m_steps.isEmpty() && Do(m_steps.first()))
                m_steps.removeFirst();
            if (m_steps.isEmpty()) {
                stop();
                std::puts("ready");
                std::fflush(stdout);
            }
        });
        start(10);
    }

private:
    QStringList m_steps = qEnvironmentVariable("TALLYMERE_STEPS").split(u',', Qt::SkipEmptyParts);
};

void PutInHand()
{
    new Hand;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(PutInHand)
