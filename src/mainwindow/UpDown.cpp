#include "mainwindow/UpDown.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

UpDown::UpDown(QWidget *parent) : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    AddArrow(QStringLiteral("Down"), Qt::DownArrow, -1);
    AddArrow(QStringLiteral("Up"), Qt::UpArrow, 1);
}

void UpDown::AddArrow(const QString &name, Qt::ArrowType arrow, int step)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the keys of the field are the way for the keyboard
    button->setAccessibleName(step > 0 ? QStringLiteral("One more") : QStringLiteral("One less"));
    button->setToolTip(button->accessibleName());
    connect(button, &QToolButton::clicked, this, [this, step] { Q_EMIT Stepped(step); });
    layout()->addWidget(button);
}

void UpDown::SetBuddy(QLineEdit *field)
{
    m_buddy = field;
    field->installEventFilter(this);
}

bool UpDown::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_buddy || event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    Q_EMIT Stepped(key == Qt::Key_Up ? 1 : -1);
    return true;
}
