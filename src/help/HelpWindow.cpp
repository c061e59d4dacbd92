#include "help/HelpWindow.h"

#include "help/HelpBook.h"
#include "help/HelpPages.h"

#include <QEvent>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int TitleBarHeight = 40; // pixels; a guess, before the window manager has put its frame around the window

/// An entry of the contents that only stands above others leads to no page.
bool IsHeading(const QUrl &page)
{
    return page.fileName().isEmpty();
}

} // namespace

HelpWindow::HelpWindow(HelpBook &book) : m_book(book)
{
    setObjectName(u"helpWindow"_s);
    setContextMenuPolicy(Qt::NoContextMenu); // which would offer to hide the toolbar
    m_pages = new HelpPages(book);
    MakeToolbar();

    QHelpContentWidget *contents = book.Engine().contentWidget();
    contents->setObjectName(u"contents"_s);
    contents->setAccessibleName(u"Contents"_s);
    contents->setHeaderHidden(true);
    // A single click opens a page as Enter does, whatever the desktop's habit is.
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::Open);
    connect(contents, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &entry) { Open(m_book.Engine().contentModel()->contentItemAt(entry)->url()); });
    connect(book.Engine().contentModel(), &QHelpContentModel::contentsCreated, this, &HelpWindow::ListPages);

    m_sides = new QTabWidget;
    m_sides->setObjectName(u"sides"_s);
    m_sides->setDocumentMode(true);
    m_sides->insertTab(Contents, contents, u"&Contents"_s);
    m_sides->insertTab(Index, MakeIndex(), u"&Index"_s);
    m_sides->insertTab(Search, MakeSearch(), u"&Search"_s);
    connect(m_sides, &QTabWidget::currentChanged, this, [this](int side) {
        if (side == Index)
            m_indexFilter->setFocus();
        else if (side == Search)
            m_searchField->setFocus();
    });

    auto *halves = new QSplitter;
    halves->addWidget(m_sides);
    halves->addWidget(m_pages);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setSizes({300, 580}); // room for most titles in the contents
    setCentralWidget(halves);
    resize(QSize(880, 600).boundedTo(screen()->availableSize() - QSize(0, TitleBarHeight)));

    connect(m_pages, &QTextBrowser::sourceChanged, this, [this](const QUrl &page) {
        m_page = page.adjusted(QUrl::RemoveFragment); // the browser itself still names the page before
        PageChanged();
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] {
        // The key that has asked for a page may still be held down, and not each of its repetitions is told as one.
        const bool isHeld = !m_lastHelpKey.hasExpired(LongestHold);
        m_lastHelpKey.start();
        if (!isHeld)
            Open(m_book.FirstPage());
    });
    m_pages->setFocus();

    // The page comes first; the words of all pages are listed on a thread of the engine's own.
    connect(book.Engine().searchEngine(), &QHelpSearchEngine::indexingFinished, this, &HelpWindow::SearchIsReady);
    QTimer::singleShot(0, this, [this] { m_book.Engine().searchEngine()->reindexDocumentation(); });
}

/// A busy computer may take long from the question to the window, with the key held down all the while.
void HelpWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_lastHelpKey.start();
}

QAction *HelpWindow::AddAction(const QString &name, const QString &caption, const QString &hint,
                               const QList<QKeySequence> &keys)
{
    auto *action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    const QString key =
        keys.isEmpty() ? QString() : u" (%1)"_s.arg(keys.constFirst().toString(QKeySequence::NativeText));
    action->setToolTip(hint + key);
    addAction(action);
    return action;
}

void HelpWindow::MakeToolbar()
{
    QToolBar *bar = addToolBar(u"Toolbar"_s);
    bar->setObjectName(u"toolbar"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);

    QAction *back = AddAction(u"back"_s, u"Back"_s, u"Back to the page that you saw before"_s,
                              {Qt::ALT | Qt::Key_Left, Qt::Key_Back});
    QAction *forward = AddAction(u"forward"_s, u"Forward"_s, u"Forward again to the page that you went back from"_s,
                                 {Qt::ALT | Qt::Key_Right, Qt::Key_Forward});
    m_previous =
        AddAction(u"previous"_s, u"<<"_s, u"The page before this one in the contents"_s, {Qt::ALT | Qt::Key_PageUp});
    m_next = AddAction(u"next"_s, u">>"_s, u"The page after this one in the contents"_s, {Qt::ALT | Qt::Key_PageDown});
    QAction *first =
        AddAction(u"first"_s, u"First Page"_s, u"The page that the help begins with"_s, {Qt::ALT | Qt::Key_Home});
    QAction *larger =
        AddAction(u"larger"_s, u"Larger"_s, u"Larger letters"_s, {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    QAction *smaller = AddAction(u"smaller"_s, u"Smaller"_s, u"Smaller letters"_s, {Qt::CTRL | Qt::Key_Minus});
    QAction *normal = AddAction(u"normal"_s, u"Normal Size"_s, u"Letters of the usual size"_s, {Qt::CTRL | Qt::Key_0});
    QAction *print = AddAction(u"print"_s, u"Print..."_s, u"Print this page"_s, {Qt::CTRL | Qt::Key_P});

    bar->addActions({back, forward});
    bar->addSeparator();
    bar->addActions({m_previous, m_next});
    bar->addSeparator();
    bar->addAction(first);
    bar->addAction(larger);
    bar->addAction(smaller);
    bar->addAction(print);
    for (QAction *action : {back, forward, m_previous, m_next, first, larger, smaller, print}) {
        QWidget *button = bar->widgetForAction(action);
        button->setObjectName(action->objectName() + u"Button"_s);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleDescription(action->toolTip());
    }
    // Signs alone say nothing to who cannot see them.
    bar->widgetForAction(m_previous)->setAccessibleName(u"Previous page"_s);
    bar->widgetForAction(m_next)->setAccessibleName(u"Next page"_s);

    for (QAction *action : {back, forward, m_previous, m_next})
        action->setEnabled(false);
    connect(m_pages, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_pages, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, m_pages, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_pages, &QTextBrowser::forward);
    connect(m_previous, &QAction::triggered, this, [this] { Browse(-1); });
    connect(m_next, &QAction::triggered, this, [this] { Browse(1); });
    connect(first, &QAction::triggered, this, [this] { Open(m_book.FirstPage()); });
    connect(larger, &QAction::triggered, m_pages, [this] { m_pages->zoomIn(); });
    connect(smaller, &QAction::triggered, m_pages, [this] { m_pages->zoomOut(); });
    connect(normal, &QAction::triggered, m_pages, &HelpPages::ZoomToNormal);
    connect(print, &QAction::triggered, this, &HelpWindow::PrintPage);
}

QWidget *HelpWindow::MakeIndex()
{
    QHelpIndexWidget *index = m_book.Engine().indexWidget();
    index->setObjectName(u"index"_s);
    index->setAccessibleName(u"Index"_s);
    m_indexFilter = new QLineEdit;
    m_indexFilter->setObjectName(u"indexFilter"_s);
    m_indexFilter->setAccessibleName(u"Look for"_s);
    m_indexFilter->setPlaceholderText(u"Look for"_s);
    m_indexFilter->setClearButtonEnabled(true);
    connect(m_indexFilter, &QLineEdit::textChanged, index,
            [index](const QString &text) { index->filterIndices(text); });
    connect(m_indexFilter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    // The arrow keys go through the words that are left, while one goes on typing.
    for (const auto &[key, step] : {std::pair(Qt::Key_Up, -1), {Qt::Key_Down, 1}})
        connect(new QShortcut(key, m_indexFilter, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, index,
                [index, step = step] {
                    const QModelIndex next = index->model()->index(index->currentIndex().row() + step, 0);
                    if (next.isValid())
                        index->setCurrentIndex(next);
                });
    connect(index, &QAbstractItemView::clicked, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink &page) { Open(page.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink> &pages) { Open(pages.constFirst().url); });

    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(8, 8, 0, 0);
    layout->addWidget(m_indexFilter);
    layout->addWidget(index);
    return side;
}

QWidget *HelpWindow::MakeSearch()
{
    QHelpSearchEngine *engine = m_book.Engine().searchEngine();
    QHelpSearchQueryWidget *query = engine->queryWidget();
    query->setObjectName(u"searchQuery"_s);
    query->setCompactMode(true);
    m_searchField = query->findChild<QLineEdit *>();
    m_searchField->setObjectName(u"searchField"_s);
    m_searchField->setAccessibleName(u"Words to search for"_s);
    m_searchField->setPlaceholderText(u"Words to search for"_s);
    QHelpSearchResultWidget *results = engine->resultWidget();
    results->setObjectName(u"searchResults"_s);
    results->setAccessibleName(u"Pages found"_s);
    auto *list = results->findChild<QTextBrowser *>();
    list->setObjectName(u"foundPages"_s);
    list->setAccessibleName(u"Pages found"_s);
    connect(query, &QHelpSearchQueryWidget::search, this, &HelpWindow::StartSearch);
    connect(results, &QHelpSearchResultWidget::requestShowLink, this, &HelpWindow::Open);

    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(8, 8, 0, 0);
    layout->addWidget(query);
    layout->addWidget(results, 1);
    return side;
}

void HelpWindow::StartSearch()
{
    m_book.Engine().searchEngine()->search(SearchWords(m_searchField->text()));
}

void HelpWindow::ListPages()
{
    m_order.clear();
    const QHelpContentModel *model = m_book.Engine().contentModel();
    const auto add = [&](const QModelIndex &parent, const auto &addChildren) -> void {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex entry = model->index(row, 0, parent);
            const QUrl page = model->contentItemAt(entry)->url();
            if (!IsHeading(page))
                m_order += page;
            addChildren(entry, addChildren);
        }
    };
    add({}, add);
    m_book.Engine().contentWidget()->expandAll();
    PageChanged();
}

void HelpWindow::Answer(const QString &question)
{
    m_lastHelpKey.start();
    const QString kind = question.section(u' ', 0, 0);
    const QString name = question.section(u' ', 1).trimmed();
    m_sides->setCurrentIndex(kind == u"contents"_s ? Search : Contents);
    const QUrl page = m_book.PageOf(kind == u"context"_s ? u"context-"_s + name : name);
    Open(page.isEmpty() ? m_book.FirstPage() : page);
}

void HelpWindow::ComeForward()
{
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void HelpWindow::Open(const QUrl &page)
{
    if (IsHeading(page))
        return;
    m_pages->setSource(page);
    if (m_sides->currentIndex() == Contents)
        m_pages->setFocus();
}

void HelpWindow::PageChanged()
{
    setWindowTitle(u"%1 - Help"_s.arg(m_pages->documentTitle()));
    const qsizetype place = m_order.indexOf(m_page);
    m_previous->setEnabled(place > 0);
    m_next->setEnabled(place >= 0 && place + 1 < m_order.size());
    QHelpContentWidget *contents = m_book.Engine().contentWidget();
    if (const QModelIndex entry = contents->indexOf(m_page); entry.isValid())
        contents->setCurrentIndex(entry);
}

void HelpWindow::Browse(int step)
{
    Open(m_order.value(m_order.indexOf(m_page) + step));
}

void HelpWindow::PrintPage()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_pages->documentTitle()); // which a PDF file gets as its name, too
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        m_pages->print(&printer);
}
