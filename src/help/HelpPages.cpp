#include "help/HelpPages.h"

#include "help/HelpBook.h"

#include <QApplication>
#include <QEvent>

using namespace Qt::Literals::StringLiterals;

HelpPages::HelpPages(HelpBook &book, QWidget *parent) : QTextBrowser(parent), m_book(book)
{
    setObjectName(u"pages"_s);
    setAccessibleName(u"Help page"_s);
    setOpenExternalLinks(false);
    document()->setDocumentMargin(12);
}

void HelpPages::ZoomToNormal()
{
    setFont(QApplication::font(this));
}

QVariant HelpPages::loadResource(int type, const QUrl &address)
{
    QByteArray text = m_book.Engine().fileData(address);
    if (type == QTextDocument::HtmlResource) {
        if (text.isEmpty())
            return u"<h1>There is no such page</h1><p>The contents beside this page list all that there are.</p>"_s;
        // The toolkit knows no marks around quoted words, and a column's width only where it stands in the table.
        text.replace("<q>", "<i>\u201c").replace("</q>", "\u201d</i>").replace("<th>", "<th width=\"32%\">");
        return QString::fromUtf8(text);
    }
    if (type == QTextDocument::StyleSheetResource)
        return QString::fromUtf8(text);
    return text;
}

void HelpPages::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        reload(); // the colors of a page are those of the moment in which it was read
}

void HelpPages::doSetSource(const QUrl &address, QTextDocument::ResourceType type)
{
    if (address.scheme() == u"qthelp"_s)
        QTextBrowser::doSetSource(address, type);
}
