// The pages of the help as their tests read them.
#pragma once

#include "Sources.h"

#include <QDir>
#include <QHash>
#include <QMap>
#include <QXmlStreamReader>
#include <QtTest>
#include <functional>

using namespace Qt::Literals::StringLiterals;

inline const QString HelpFolder = QStringLiteral(PROJECT_FOLDER "/help/");
inline const QString PagesFolder = HelpFolder + u"pages/"_s;
/// The one file that all pages become.
inline const QString HelpFile = QStringLiteral(HELP_FILE);

/// The help contexts of the message boxes with a help button, and the window that each belongs to.
inline const QMap<int, QString> HelpContexts{
    {4, u"frmProjects"_s},
    {18, u"frmTotalHours"_s},
    {22, u"frmCreditors"_s},
    {23, u"frmRegulars"_s},
    {24, u"frmExtras"_s},
    {25, u"frmProjects"_s},
    {26, u"frmAverageNetPercentage"_s},
    {27, u"frmAverageNetPercentage"_s},
    {28, u"frmAverageNetPercentage"_s},
    {29, u"frmAverageNetPercentage"_s},
    {30, u"frmCalculateWages"_s},
};

/// The name of a page in an address, without its folders, its ending and the place on it.
inline QString NameIn(const QString &address)
{
    return address.section(u'#', 0, 0).section(u'/', -1).section(u'.', 0, 0);
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

inline QString TitleOf(const QString &name)
{
    const Node page = PageOf(name);
    const QList<const Node *> titles = page.All(u"title"_s);
    return titles.isEmpty() ? QString() : titles[0]->Text();
}

/// All that can be read on a page.
inline QString WordsOf(const QString &name)
{
    static QHash<QString, QString> known;
    if (!known.contains(name))
        known[name] = PageOf(name).Text();
    return known[name];
}

/// The rows of a test that looks at every page, with its name as their one column.
inline void EachPage()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : PageNames())
        QTest::newRow(qPrintable(name)) << name;
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

/// Whether the pieces stand in the text one behind the other.
inline bool StandInOrder(const QStringList &pieces, const QString &text)
{
    qsizetype from = 0;
    for (const QString &piece : pieces) {
        from = text.indexOf(piece, from);
        if (from < 0)
            return false;
        from += piece.size();
    }
    return true;
}
