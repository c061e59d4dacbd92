#include "Watchdog.h"

#include "GuiDesk.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

Watchdog::Watchdog(int limit) : m_limit(limit)
{
    startTimer(std::min(limit / 2, 500));
}

void Watchdog::timerEvent(QTimerEvent *)
{
    QWidget *modal = QApplication::activeModalWidget();
    if (modal != m_modal) {
        m_modal = modal;
        m_since.start();
        return;
    }
    if (!modal || m_since.elapsed() < m_limit)
        return;
    m_since.start();
    QString name = modal->objectName() + QLatin1Char(' ') + modal->windowTitle();
    if (const auto *box = qobject_cast<QMessageBox *>(modal))
        name += u": "_s + box->text();
    Fail(u"a modal window stood until the watchdog closed it: "_s + name.simplified(), LastAct());
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->done(QDialog::Rejected);
    else if (!TheWindows.Loaded(modal->objectName()) || !TheWindows.Unload(modal->objectName()))
        modal->close();
    if (modal == QApplication::activeModalWidget())
        GiveUp(u"it cannot be closed"_s, LastAct());
}
