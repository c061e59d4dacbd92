// What the tests of the income windows share.
#pragma once

#include "GuiDesk.h"
#include "income/IncomeState.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace Test {

inline const QString Wages = QStringLiteral("frmCalculateWages");
inline const QString Hours = QStringLiteral("frmTotalHours");
inline const QString AverageNet = QStringLiteral("frmAverageNetPercentage");

inline const QString UnknownError = QStringLiteral(
    "An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    "page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    "on the bottom right of the main window.");

inline Currency Dollars(qint64 amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

inline QString Selected(const QString &window, const QString &field)
{
    return Find<QLineEdit>(window, field).selectedText();
}

/// The texts of several controls, "a | b".
inline QString Texts(const QString &window, const QStringList &controls)
{
    QStringList texts;
    for (const QString &control : controls)
        texts += TextOf(window, control);
    return texts.join(QStringLiteral(" | "));
}

/// A key that is held down reaches a control once more.
inline void HoldKey(const QString &window, const QString &control, Qt::Key key, const QString &text)
{
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, text, true);
    QApplication::sendEvent(&Find(window, control), &held);
    Settle();
}

/// The label that names a field.
inline QString LabelOf(const QString &window, const QString &field)
{
    const QList<QLabel *> labels = TheWindows.Loaded(window)->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        if (label->buddy() == &Find(window, field))
            return label->text();
    return {};
}

/// The controls that the tab key visits, from the first one on.
inline QStringList TabOrder(const QString &window)
{
    QStringList order;
    Form *form = TheWindows.Loaded(window);
    for (QWidget *widget = form->nextInFocusChain(); widget != form; widget = widget->nextInFocusChain())
        if (widget->focusPolicy() & Qt::TabFocus)
            order += widget->objectName();
    return order;
}

/// Does what shows a modal window and, while it stands there as the active one, the steps; returns whether it did.
/// It is closed afterwards where the steps leave it open.
inline bool Meanwhile(const QString &modal, const std::function<void()> &act, const std::function<void()> &steps)
{
    bool shown = false;
    QTimer::singleShot(0, qApp, [&] {
        shown = IsShown(modal) && ActiveWindow() == modal && TheWindows.Loaded(modal)->isModal();
        if (shown)
            steps();
        TheWindows.Unload(modal);
    });
    act();
    Settle();
    return shown;
}

} // namespace Test
