// Shows a page of the help. Addresses lead into the help file alone.
#pragma once

#include <QTextBrowser>

class HelpBook;

class HelpPages : public QTextBrowser
{
    Q_OBJECT
public:
    explicit HelpPages(HelpBook &book, QWidget *parent = nullptr);

    /// The letters as large as the desktop wants them.
    void ZoomToNormal();

    QVariant loadResource(int type, const QUrl &address) override;

protected:
    void changeEvent(QEvent *event) override;
    void doSetSource(const QUrl &address, QTextDocument::ResourceType type) override;

private:
    HelpBook &m_book;
};
