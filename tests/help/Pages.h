// The pages of the help as their tests read them, and the words of the program's sources that they are held against.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <functional>

using namespace Qt::Literals::StringLiterals;

inline const QString HelpFolder = QStringLiteral(PROJECT_FOLDER "/help/");
inline const QString PagesFolder = HelpFolder + u"pages/"_s;
inline const QString SourceFolder = QStringLiteral(PROJECT_FOLDER "/src/");

inline QByteArray BytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// An element of a page, or a text between elements, which has no name.
struct Node {
    QString Name;
    QString Words; ///< of a text
    QMap<QString, QString> Attributes;
    QList<Node> Children;

    /// Everything that is read here, blanks simplified.
    QString Text() const { return AllWords().simplified(); }
    /// All elements of that name at any depth, in the order of the page, as long as that lives.
    QList<const Node *> All(const QString &name) && = delete;
    QList<const Node *> All(const QString &name) const &
    {
        QList<const Node *> found;
        ForEach([&](const Node &node) {
            if (node.Name == name)
                found += &node;
        });
        return found;
    }
    void ForEach(const std::function<void(const Node &)> &visit) const
    {
        visit(*this);
        for (const Node &child : Children)
            child.ForEach(visit);
    }

private:
    QString AllWords() const
    {
        QString words = Words;
        for (const Node &child : Children)
            words += child.AllWords();
        const bool parts = !Name.isEmpty() && !QStringList{u"b"_s, u"i"_s, u"q"_s, u"a"_s}.contains(Name);
        return parts ? u' ' + words + u' ' : words;
    }
};

/// Reads a page; `error` tells where it is not well-formed.
inline Node ReadPage(const QByteArray &text, QString *error = nullptr)
{
    QXmlStreamReader reader(text);
    const std::function<void(Node &)> readChildren = [&](Node &parent) {
        while (!reader.atEnd()) {
            switch (reader.readNext()) {
            case QXmlStreamReader::StartElement: {
                Node child;
                child.Name = reader.name().toString();
                for (const QXmlStreamAttribute &attribute : reader.attributes())
                    child.Attributes[attribute.qualifiedName().toString()] = attribute.value().toString();
                readChildren(child);
                parent.Children += child;
                break;
            }
            case QXmlStreamReader::Characters: parent.Children += Node{{}, reader.text().toString(), {}, {}}; break;
            case QXmlStreamReader::EndElement: return;
            default: break;
            }
        }
    };
    Node root;
    readChildren(root);
    if (error)
        *error = reader.hasError() ? u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString()) : QString();
    return root;
}

/// The names of all pages, without ".html".
inline QStringList PageNames()
{
    QStringList names;
    for (const QString &file : QDir(PagesFolder).entryList({u"*.html"_s}))
        names += file.chopped(5);
    return names;
}

inline Node PageOf(const QString &name)
{
    return ReadPage(BytesOf(PagesFolder + name + u".html"_s));
}

/// A caption as it is read: without the mark of its access key and without the colon at its end.
inline QString Plain(QString caption)
{
    caption.replace(u"&&"_s, u"\x1"_s).remove(u'&').replace(u"\x1"_s, u"&"_s);
    caption = caption.section(u'\t', 0, 0).simplified(); // behind the tab stands a key
    return caption.endsWith(u':') ? caption.chopped(1).trimmed() : caption;
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

/// The texts of a design.
inline QStringList TextsOfDesign(const QString &path)
{
    QStringList texts;
    const Node design = ReadPage(BytesOf(path));
    for (const Node *text : design.All(u"string"_s))
        texts += text->Text();
    return texts;
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

/// The pieces of a text between its varying places: "%1" in a source, "…" on a page.
inline QStringList PiecesOf(const QString &text)
{
    static const QRegularExpression varying(u"%[1-9]|\u2026"_s);
    QStringList pieces;
    for (const QString &piece : text.split(varying))
        if (!piece.trimmed().isEmpty())
            pieces += piece.simplified();
    return pieces;
}
