#include "platform/controls/Fields.h"

#include "platform/values/Format.h"

#include <QLineEdit>

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
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
}
