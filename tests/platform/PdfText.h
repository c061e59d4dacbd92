// What stands in a PDF file.
#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

/// The pages of a PDF file as text, laid out as on the paper.
inline QStringList PagesOf(const QString &path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!reader.waitForStarted() || !reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext (of the package poppler-utils) does not run");
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
    pages.removeLast();
    return pages;
}

/// Where a word begins and ends on its page, and the page's width, in points.
struct Place {
    double Left = -1;
    double Right = -1;
    double PageWidth = 0;
};

inline Place PlaceOf(const QString &word, const QString &path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext (of the package poppler-utils) does not run");
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    static const QRegularExpression page(QStringLiteral("<page width=\"([0-9.]+)\""));
    const QRegularExpression found(
        QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"[0-9.]+\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">%1<").arg(word));
    const auto match = found.match(text);
    Place place;
    place.PageWidth = page.match(text).captured(1).toDouble();
    if (match.hasMatch()) {
        place.Left = match.captured(1).toDouble();
        place.Right = match.captured(2).toDouble();
    }
    return place;
}
