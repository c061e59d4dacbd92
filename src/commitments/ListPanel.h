// What the windows of creditors, regular items, extras and projects have in common: a list of records, and a panel of
// fields in which one of them is entered or changed. Where the four differ stands in the windows themselves.
#pragma once

#include "foundation/Refusal.h"
#include "foundation/WorkWindow.h"

#include <functional>

class ListBox;
class QPushButton;

// The caption of the commit button is the mode of the panel and is compared as text.
inline const QString NewCaption = QStringLiteral("&New");
inline const QString ChangeCaption = QStringLiteral("&Change");

class ListPanel : public WorkWindow
{
    Q_OBJECT
public:
    int HelpContext() const override { return m_controls.HelpContext; }

protected:
    struct Controls {
        QString Title; ///< of the window's messages
        int HelpContext = 0;
        ListBox *List = nullptr;
        QPushButton *Delete = nullptr;
        QPushButton *Commit = nullptr;
        QList<QLineEdit *> Fields; ///< in the order in which they stand
    };
    void TakeControls(const Controls &controls);

    /// The record of the selected row. Where no row is selected it is 0, which is no record and error 9: after a commit
    /// the buttons outlast the selection.
    int SelectedRecord() const;
    /// Runs a handler's steps. An error ends them with the warning box.
    void Trap(const std::function<void()> &steps);
    /// Tells why an entry is refused, if it is, and moves the focus where it is told to go.
    bool Refused(const std::optional<Refusal> &refusal);

    void SetFields(const QStringList &texts);
    void EmptyFields();
    void EnableFields(bool enabled);
    /// Lets the user enter a new record or change one, as the caption tells, beginning in the field `first`.
    void OpenPanel(const QString &caption, QLineEdit *first);
    /// What follows a delete: nothing can be committed or deleted until the user has chosen again.
    void ClosePanel();

private:
    Controls m_controls;
};
