// A picture of the icon family, at any size sharp and in the colours of the desktop.
#pragma once

#include <QIcon>
#include <QWidget>

class Picture : public QWidget
{
    Q_OBJECT
    /// Width and height in pixels.
    Q_PROPERTY(int side READ Side WRITE SetSide)
public:
    explicit Picture(QWidget *parent = nullptr);

    void Show(const QIcon &icon);
    const QIcon &Shown() const { return m_icon; }
    int Side() const { return m_side; }
    void SetSide(int side);
    QSize sizeHint() const override { return {m_side, m_side}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon m_icon;
    int m_side = 48;
};
