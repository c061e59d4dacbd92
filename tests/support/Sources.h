// The program's sources, read as files: what they say on the screen stands between double quotes there.
#pragma once

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

inline const QString SourceFolder = QStringLiteral(PROJECT_FOLDER "/src/");

/// What a file holds; nothing where it cannot be read.
inline QByteArray BytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The files of the program's sources with one of these endings.
inline QStringList SourceFiles(const QStringList &endings)
{
    QStringList files;
    for (QDirIterator each(SourceFolder, endings, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
        files += each.next();
    files.sort();
    return files;
}

/// The texts between double quotes in a C++ source, those that stand side by side joined, escapes resolved.
inline QStringList LiteralsOf(const QString &path)
{
    static const QRegularExpression comment(u"^\\s*//[^\\n]*|[;{},)] +//[^\\n]*"_s,
                                            QRegularExpression::MultilineOption);
    static const QRegularExpression piece(u"(?:u8|u|L)?\"((?:[^\"\\\\]|\\\\.)*)\"(?:_s|_L1)?|'(?:[^'\\\\]|\\\\.)'"_s);
    const QString source = QString::fromUtf8(BytesOf(path)).remove(comment);
    QStringList literals;
    qsizetype end = -1;
    for (auto pieces = piece.globalMatch(source); pieces.hasNext();) {
        const QRegularExpressionMatch match = pieces.next();
        if (match.capturedStart(1) < 0)
            continue;
        QString words = match.captured(1);
        words.replace(u"\\n"_s, u" "_s)
            .replace(u"\\t"_s, u"\t"_s)
            .replace(u"\\\""_s, u"\""_s)
            .replace(u"\\\\"_s, u"\\"_s);
        const bool continues =
            end >= 0 && source.mid(end, match.capturedStart() - end).trimmed().isEmpty() && !literals.isEmpty();
        if (continues)
            literals.last() += words;
        else
            literals += words;
        end = match.capturedEnd();
    }
    return literals;
}
