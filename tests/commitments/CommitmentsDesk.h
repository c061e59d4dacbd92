// What the tests of the commitments' windows share: the controls of a window in one look.
#pragma once

#include "GuiDesk.h"

#include "budget/SavingsForecast.h"
#include "budget/ScanPayPeriods.h"
#include "commitments/Extras.h"
#include "commitments/Projects.h"

#include <QGroupBox>

using CommitmentsDesk = GuiDesk;

inline Currency Dollars(double amount)
{
    return Currency::FromDouble(amount);
}

inline const QString UnknownErrorText = QStringLiteral(
    "An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    "page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    "on the bottom right of the main window.");

/// Those of the controls that are enabled, parted by blanks.
inline QString Enabled(const QString &window, const QStringList &controls)
{
    QStringList enabled;
    for (const QString &control : controls)
        if (IsEnabled(window, control))
            enabled += control;
    return enabled.join(QLatin1Char(' '));
}

/// The texts of several controls, parted by " | ".
inline QString Texts(const QString &window, const QStringList &controls)
{
    QStringList texts;
    for (const QString &control : controls)
        texts += TextOf(window, control);
    return texts.join(QStringLiteral(" | "));
}

inline QString SelectedText(const QString &window, const QString &field)
{
    return Find<QLineEdit>(window, field).selectedText();
}

inline int SelectedRow(const QString &window, const QString &list)
{
    return Find<ListBox>(window, list).ListIndex();
}

/// The names of the controls that the tab key visits, from the first one on.
inline QStringList TabOrder(const QString &window)
{
    QStringList order;
    Form *form = TheWindows.Loaded(window);
    for (QWidget *widget = form->nextInFocusChain(); widget != form; widget = widget->nextInFocusChain())
        if ((widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith(QStringLiteral("qt_")))
            order += widget->objectName();
    return order;
}

/// The labels in front of fields: each must be its field's buddy, so that it names it.
inline QString BuddyText(const QString &window, const QString &field)
{
    const QList<QLabel *> labels = TheWindows.Loaded(window)->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        if (label->buddy() == &Find(window, field))
            return label->text();
    return {};
}

inline void DoubleClickRow(const QString &window, const QString &list, int row)
{
    auto &box = Find<ListBox>(window, list);
    const QPoint place = box.visualItemRect(box.item(row)).center();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Settle();
}

/// A second window of the program to go to and come back from.
class Other : public Form
{
};
