// The window of the help: contents, index and search on the left, the page on the right. It remembers nothing.
#pragma once

#include <QElapsedTimer>
#include <QHelpContentWidget>
#include <QMainWindow>
#include <QUrl>

class HelpBook;
class HelpPages;
class QLineEdit;
class QSplitter;
class QTabWidget;

class HelpWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Milliseconds in which F1 does not count: after a question, after the window has become the active one, and after
    /// another F1, so that the key has to be released first.
    static constexpr int LongestHold = 1000;

    explicit HelpWindow(HelpBook &book);

    /// Carries out a question of the program: "topic frmX" opens the page of a window, "context 22" that of a help
    /// context, "contents" the first page beside the search. What it has no page for is answered by the first page.
    void Answer(const QString &question);
    /// The page that is shown, without the place on it.
    const QUrl &Page() const { return m_page; }
    /// Brings the window to the front, also from the task bar.
    void ComeForward();

Q_SIGNALS:
    /// The words of all pages have been listed, and the search can begin.
    void SearchIsReady();

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Side { Contents, Index, Search };

    void MakeToolbar();
    QWidget *MakeIndex();
    QWidget *MakeSearch();
    QAction *AddAction(const QString &name, const QString &caption, const QString &hint,
                       const QList<QKeySequence> &keys);
    void ListPages();
    void StartSearch();
    void Open(const QUrl &page);
    void PageChanged();
    void Browse(int step);
    void PrintPage();

    HelpBook &m_book;
    HelpPages *m_pages;
    QTabWidget *m_sides;
    QLineEdit *m_indexFilter = nullptr;
    QLineEdit *m_searchField = nullptr;
    QAction *m_previous = nullptr;
    QAction *m_next = nullptr;
    QElapsedTimer m_lastHelpKey;
    QUrl m_page;
    QList<QUrl> m_order; // the pages in the order of the contents
};
