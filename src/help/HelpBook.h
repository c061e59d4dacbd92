// The help file, opened with the toolkit's help engine.
//
// The engine wants to write: a collection that names the help file, and the index of its words. Both are made anew in a
// folder of this process, from a copy of the file, and go with it: so the help can be read where the program's folder
// cannot be written, and an index never belongs to another edition of the pages.
#pragma once

#include <QHelpEngine>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

class HelpBook
{
public:
    /// Opens the help file. Whether that succeeded, Error tells.
    explicit HelpBook(const QString &file);

    /// Why the file cannot be read; empty if it can.
    const QString &Error() const { return m_error; }
    QHelpEngine &Engine() { return *m_engine; }

    /// The page of a topic: a window's given name, or "context-22" for the help context 22. An empty address where the
    /// book has none.
    QUrl PageOf(const QString &topic) const;
    /// The page that the book opens on.
    QUrl FirstPage() const { return PageOf(QStringLiteral("index")); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QHelpEngine> m_engine;
    QString m_error;
};

/// The words of a query as the index knows them, parted by blanks: signs such as those of "How Do I...?" would be taken
/// for commands there. What stands between quotation marks stays together.
QString SearchWords(const QString &query);
