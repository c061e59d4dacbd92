// What the windows of creditors, regular items, extras and projects have in common: a list of records, and a panel of
// fields in which one of them is entered or changed. What a list does with its records it declares; where the four
// windows differ stands in the windows themselves.
#pragma once

#include "commitments/CommitmentList.h"
#include "platform/windows/Window.h"

class ListBox;
class QPushButton;

class ListPanel : public WindowBase
{
    Q_OBJECT
protected:
    explicit ListPanel(const CommitmentList &list)
        : WindowBase({.Title = list.Title, .HelpContext = list.HelpContext}), m_list(list)
    {
    }

    struct Controls {
        ListBox *List = nullptr;
        QPushButton *Read = nullptr;
        QPushButton *Add = nullptr;
        QPushButton *Delete = nullptr;
        QPushButton *Quit = nullptr;
        QPushButton *Commit = nullptr;
        QList<QLineEdit *> Fields; ///< as the list declares them; the first one gets the focus
    };
    /// Takes the window's controls and connects their events.
    void TakeControls(const Controls &controls);

    // The events. A window overrides those in which it differs.
    virtual void ReadClicked();
    virtual void AddClicked();
    virtual void RowClicked();
    virtual void DeleteClicked();
    /// What follows an entry that was saved; the list shows it already.
    virtual void EntrySaved() {}

    virtual void FillList();
    /// The record of the selected row. Where no row is selected it is 0, which is no record: after a commit the buttons
    /// outlast the selection.
    int SelectedRecord() const;

    void SetFields(const QStringList &texts);
    void EmptyFields();
    void EnableFields(bool enabled);
    /// Lets the user enter a new record or change one, as the caption says.
    void OpenPanel(const QString &caption);
    /// What follows a delete: nothing can be committed or deleted until the user has chosen again. The focus goes to
    /// the list.
    void ClosePanel();

    void showEvent(QShowEvent *event) override;

private:
    void CommitEntry();
    EntryOutcome TakePanel();
    void GiveListWholeRows();

    const CommitmentList &m_list;
    Controls m_controls;
    bool m_hasBeenShown = false;
};

/// Such a window of the design `UiForm`.
template <class UiForm>
class ListWindow : public ListPanel
{
protected:
    explicit ListWindow(const CommitmentList &list) : ListPanel(list) { ui.setupUi(this); }

    UiForm ui;
};
