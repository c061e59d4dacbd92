// The user at a dialog of the toolkit.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

/// Does something with the dialog that comes next, once it is there.
class AtDialog : public QObject
{
public:
    explicit AtDialog(const std::function<void(QDialog &)> &act) : m_act(act)
    {
        connect(&m_timer, &QTimer::timeout, this, &AtDialog::Look);
        m_timer.start(20);
    }
    ~AtDialog() override
    {
        if (!m_met)
            QTest::qFail("no dialog has come", __FILE__, __LINE__);
    }

private:
    void Look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_met = true;
        m_act(*dialog);
    }
    std::function<void(QDialog &)> m_act;
    QTimer m_timer;
    bool m_met = false;
};

/// A control of a dialog by its name; the program ends where it is not there.
template <class Control>
Control &Part(QDialog &dialog, const QString &name)
{
    auto *part = dialog.findChild<Control *>(name);
    if (!part)
        qFatal("%s has no %s", qPrintable(dialog.objectName()), qPrintable(name));
    return *part;
}

inline void Press(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    // The last one: a part of the dialog may have buttons of its own.
    const auto boxes = dialog.findChildren<QDialogButtonBox *>();
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
        if (QPushButton *found = (*box)->button(button); found && found->isVisible()) {
            QTest::mouseClick(found, Qt::LeftButton);
            return;
        }
    qFatal("%s has no such button", qPrintable(dialog.objectName()));
}
