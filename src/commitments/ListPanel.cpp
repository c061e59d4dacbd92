#include "commitments/ListPanel.h"

#include "foundation/UnknownError.h"
#include "platform/controls/ListBox.h"
#include "platform/desk/Desk.h"

#include <QLineEdit>
#include <QPushButton>

void ListPanel::TakeControls(const Controls &controls)
{
    m_controls = controls;
}

int ListPanel::SelectedRecord() const
{
    return m_controls.List->ListIndex() + 1;
}

void ListPanel::Trap(const std::function<void()> &steps)
{
    TrapUnknownError(m_controls.Title, steps);
}

bool ListPanel::Refused(const std::optional<Refusal> &refusal)
{
    if (!refusal)
        return false;
    ShowMessage(refusal->Text, m_controls.Title, Icon::Stop, Buttons::OkHelp, m_controls.HelpContext);
    FocusOn(findChild<QLineEdit *>(refusal->Focus));
    return true;
}

void ListPanel::SetFields(const QStringList &texts)
{
    for (qsizetype i = 0; i < texts.size(); ++i)
        m_controls.Fields[i]->setText(texts[i]);
}

void ListPanel::EmptyFields()
{
    for (QLineEdit *field : std::as_const(m_controls.Fields))
        field->clear();
}

void ListPanel::EnableFields(bool enabled)
{
    for (QLineEdit *field : std::as_const(m_controls.Fields))
        field->setEnabled(enabled);
}

void ListPanel::OpenPanel(const QString &caption, QLineEdit *first)
{
    m_controls.Commit->setText(caption);
    m_controls.Commit->setEnabled(true);
    EnableFields(true);
    FocusOn(first);
}

void ListPanel::ClosePanel()
{
    m_controls.Commit->setEnabled(false);
    EmptyFields();
    EnableFields(false);
    m_controls.Delete->setEnabled(false);
}
