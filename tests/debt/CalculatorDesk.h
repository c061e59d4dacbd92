// What the tests of the calculators' windows share.
#pragma once

#include "../commitments/CommitmentsDesk.h"
#include "debt/DebtState.h"

#include <QAccessible>
#include <QRadioButton>

const inline QString Beginning = QStringLiteral("optPaymentDue0");
const inline QString End = QStringLiteral("optPaymentDue1");

/// When payments are due as the window shows it: 1 for the beginning, 0 for the end, -1 for neither.
inline int DueShown(const QString &window)
{
    const bool beginning = Find<QRadioButton>(window, Beginning).isChecked();
    const bool end = Find<QRadioButton>(window, End).isChecked();
    return beginning == end ? -1 : int(beginning);
}

/// Goes to another window of the program and comes back.
inline void LeaveAndComeBack(const QString &window)
{
    const QString other = QStringLiteral("frmOther");
    if (!TheWindows.Knows(other))
        TheWindows.Register(other, [] { return new Other; });
    Show(other);
    Show(window);
}

/// Fills fields by typing.
inline void TypeAll(const QString &window, const QStringList &fields, const QStringList &texts)
{
    for (int i = 0; i < fields.size(); ++i)
        Type(window, fields[i], texts[i]);
}

inline Message Warning(const QString &title, const QString &text)
{
    return {.Text = text, .Title = title, .TheIcon = Icon::Warning};
}

/// Walks the ring of Enter once round: the focus goes from field to field, and each one's whole text is selected.
inline void WalkTheRing(const QString &window, const QStringList &fields)
{
    Find(window, fields.first()).setFocus();
    for (int i = 0; i < fields.size(); ++i) {
        const QString next = fields[(i + 1) % fields.size()];
        PressEnter(window, fields[i]);
        QCOMPARE(FocusOf(window), next);
        QCOMPARE(SelectedText(window, next), TextOf(window, next));
        QVERIFY(!TextOf(window, next).isEmpty());
    }
}

/// The options follow what holds, without changing it, and a click sets it.
inline void SeeThatOptionsAndSharedValueAgree(const QString &window)
{
    for (const int due : {0, 1, 0}) {
        Debt.LoanPaymentDue = qint16(due); // as another calculator would
        LeaveAndComeBack(window);
        QCOMPARE(DueShown(window), due);
        QCOMPARE(Debt.LoanPaymentDue, qint16(due));
    }
    Click(window, Beginning);
    QCOMPARE(Debt.LoanPaymentDue, qint16(1));
    QCOMPARE(DueShown(window), 1);
    Click(window, End);
    QCOMPARE(Debt.LoanPaymentDue, qint16(0));
    QCOMPARE(DueShown(window), 0);
}

/// The line that tells that the options have changed while the user was elsewhere.
inline QString DueLine(const QString &window)
{
    return TextOf(window, QStringLiteral("lblDueChanged"));
}

/// The line comes when the options that the window has shown change, stays through refusals, and goes with the result.
/// The window has been calculated with what its fields hold, payments being due at the end.
inline void SeeThatAChangeFromElsewhereIsTold(const QString &window, const QString &result, const QString &count)
{
    const QString line = QStringLiteral("Another calculator has changed when payments are due. Press Calculate again.");
    const QString calculate = QStringLiteral("cmdCalculate");
    QCOMPARE(DueLine(window), QString());
    LeaveAndComeBack(window);
    QCOMPARE(DueLine(window), QString()); // nobody has changed anything
    Click(window, Beginning);
    Click(window, End);
    QCOMPARE(DueLine(window), QString()); // the user's own doing

    const QString before = TextOf(window, result);
    Debt.LoanPaymentDue = 1; // as another calculator would
    LeaveAndComeBack(window);
    QCOMPARE(DueLine(window), line);
    QVERIFY(Find(window, QStringLiteral("lblDueChanged")).isVisible());
    QCOMPARE(TextOf(window, result), before);
    LeaveAndComeBack(window);
    QCOMPARE(DueLine(window), line);

    const QString many = TextOf(window, count);
    Type(window, count, QStringLiteral("many"));
    Click(window, calculate); // refused
    QCOMPARE(DueLine(window), line);
    Type(window, count, QStringLiteral("70000"));
    Click(window, calculate); // fails
    QCOMPARE(DueLine(window), line);
    QCOMPARE(TextOf(window, result), before);
    Type(window, count, many);
    Click(window, calculate);
    QCOMPARE(DueLine(window), QString());
    QVERIFY(TextOf(window, result) != before);
    QCOMPARE(DueShown(window), 1);
}

/// What is read aloud of a control.
inline QString NameSpoken(const QString &window, const QString &control)
{
    return QAccessible::queryAccessibleInterface(&Find(window, control))->text(QAccessible::Name);
}
