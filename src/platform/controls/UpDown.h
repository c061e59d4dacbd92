// A spinner at the right end of its field: two arrows, one over the other, as high as the field. It counts nothing
// itself; it raises the steps that the user asks for.
#pragma once

#include <QWidget>

class QLineEdit;

class UpDown : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)
public:
    explicit UpDown(QWidget *parent = nullptr);

    int Maximum() const { return m_maximum; }
    void SetMaximum(int maximum) { m_maximum = maximum; }
    /// The up and down keys in this field are steps too.
    void SetBuddy(QLineEdit *field);
    QSize sizeHint() const override;

Q_SIGNALS:
    void Stepped(int step); ///< 1 up, -1 down

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void AddArrow(const QString &name, Qt::ArrowType arrow, int step);

    int m_maximum = 10;
    QLineEdit *m_buddy = nullptr;
};
