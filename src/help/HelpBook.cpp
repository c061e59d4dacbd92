#include "help/HelpBook.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHelpLink>
#include <QStandardPaths>
#include <cerrno>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString FolderPrefix = u"reading-"_s;

/// Takes away what processes have left behind that were ended before they could do it themselves.
void RemoveLeftovers(const QDir &cache)
{
    for (const QString &name : cache.entryList({FolderPrefix + u'*'}, QDir::Dirs)) {
        const auto process = pid_t(name.mid(FolderPrefix.size()).section(u'-', 0, 0).toLongLong());
        if (process > 0 && ::kill(process, 0) != 0 && errno == ESRCH)
            QDir(cache.filePath(name)).removeRecursively();
    }
}

/// A folder of this process in the user's cache, or where that cannot be written among the temporary files.
std::unique_ptr<QTemporaryDir> WorkingFolder()
{
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    if (cache.mkpath(u"."_s)) {
        RemoveLeftovers(cache);
        auto folder = std::make_unique<QTemporaryDir>(
            cache.filePath(u"%1%2-XXXXXX"_s.arg(FolderPrefix).arg(QCoreApplication::applicationPid())));
        if (folder->isValid())
            return folder;
    }
    return std::make_unique<QTemporaryDir>();
}

} // namespace

HelpBook::HelpBook(const QString &file)
{
    if (!QFile::exists(file)) {
        m_error = u"The help file is missing:\n%1"_s.arg(file);
        return;
    }
    m_folder = WorkingFolder();
    const QString copy = m_folder->filePath(u"pages.qch"_s);
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        m_error = u"The help file cannot be read:\n%1"_s.arg(file);
        return;
    }
    if (!m_folder->isValid() || !source.copy(copy)) {
        m_error = u"The help could not be opened, since its working copy cannot be written:\n%1"_s.arg(copy);
        return;
    }
    m_engine = std::make_unique<QHelpEngine>(m_folder->filePath(u"collection.qhc"_s));
    m_engine->setReadOnly(false);
    m_engine->setUsesFilterEngine(true); // the other kind of filters is deprecated
    if (!m_engine->setupData() || !m_engine->registerDocumentation(copy) || !m_engine->setupData() ||
        FirstPage().isEmpty())
        m_error = u"The help file is damaged:\n%1"_s.arg(file);
}

QUrl HelpBook::PageOf(const QString &topic) const
{
    if (!m_engine)
        return {};
    const QList<QHelpLink> pages = m_engine->documentsForIdentifier(topic);
    return pages.isEmpty() ? QUrl() : pages.constFirst().url;
}

QString SearchWords(const QString &query)
{
    QString words;
    for (const QChar sign : query)
        words += sign.isLetterOrNumber() || sign == u'"' ? sign : QChar(u' ');
    if (words.count(u'"') % 2 != 0)
        words.replace(u'"', u' ');
    return words.simplified();
}
