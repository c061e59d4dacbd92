// The print switch: one control of two sides, "On" and "Off", of which the one that holds is lit.
#pragma once

#include <QWidget>

class QPushButton;

class PrintSwitch : public QWidget
{
    Q_OBJECT
public:
    /// Off. Its sides are the buttons pbPrintOn and pbPrintOff with the words Label1 and Label2.
    explicit PrintSwitch(QWidget *parent = nullptr);

    bool IsOn() const;
    /// Raises the click as the user's own does; the state that holds already raises nothing.
    void Set(bool on);

Q_SIGNALS:
    void Click(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void ShowState();

    QPushButton *m_on;
    QPushButton *m_off;
};
