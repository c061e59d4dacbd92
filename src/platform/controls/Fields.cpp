#include "platform/controls/Fields.h"

#include "platform/values/Format.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

namespace {

/// A field without a ground of its own whose text has the ordinary colour also while it is disabled: nobody could type
/// into it anyway, and it is there to be read.
class ShownLook : public QObject
{
public:
    explicit ShownLook(QLineEdit *field) : QObject(field), m_field(field)
    {
        field->installEventFilter(this);
        TakeColours();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_field && event->type() == QEvent::PaletteChange)
            TakeColours();
        return false;
    }

private:
    void TakeColours()
    {
        const QColor ink = QApplication::palette(m_field).color(QPalette::Active, QPalette::Text);
        QPalette palette = m_field->palette();
        // Our own change of the palette comes back here as an event; this ends it.
        if (palette.color(QPalette::Disabled, QPalette::Text) == ink &&
            palette.color(QPalette::Base) == QColor(Qt::transparent))
            return;
        palette.setColor(QPalette::Base, Qt::transparent);
        palette.setColor(QPalette::Disabled, QPalette::Text, ink);
        m_field->setPalette(palette);
    }

    QLineEdit *m_field;
};

} // namespace

void SelectWhole(QLineEdit *field)
{
    const int length = int(field->text().size());
    field->setSelection(length, -length);
}

void ShowFromBeginning(QLineEdit *field)
{
    const auto show = [field] {
        if (!field->isModified())
            field->setCursorPosition(0);
    };
    show();
    QObject::connect(field, &QLineEdit::textChanged, field, show);
}

void ShowAsCurrency(QLineEdit *field)
{
    field->setText(Format(field->text(), NumberFormat::Currency));
    field->setCursorPosition(0); // also where the text is the same
}

void ShowOnly(QLineEdit *field)
{
    field->setReadOnly(true);
    new ShownLook(field);
}
