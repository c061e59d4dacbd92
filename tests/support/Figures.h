// The worked examples of docs/figures.md, as the tests read them.
#pragma once

#include <QFile>
#include <QMap>
#include <QTextStream>

/// A row of an example by the headings of its table.
using Figures = QMap<QString, QString>;

/// The rows of the table below a heading of the second level; empty where there is none.
inline QList<Figures> ExamplesOf(const QString &heading)
{
    QFile page(QStringLiteral(PROJECT_FOLDER "/docs/figures.md"));
    if (!page.open(QIODevice::ReadOnly))
        return {};
    QTextStream lines(&page);
    QString line;
    const auto cellsOf = [](const QString &row) {
        QStringList cells;
        for (const QString &cell : row.split(u'|').mid(1))
            cells += cell.trimmed();
        cells.removeLast(); // what follows the last bar
        return cells;
    };
    while (lines.readLineInto(&line) && line != QStringLiteral("## ") + heading)
        continue;
    QStringList headings;
    QList<Figures> examples;
    while (lines.readLineInto(&line) && !line.startsWith(QStringLiteral("## "))) {
        if (!line.startsWith(u'|') || line.startsWith(QStringLiteral("|-")))
            continue;
        const QStringList cells = cellsOf(line);
        if (headings.isEmpty()) {
            headings = cells;
            continue;
        }
        Figures example;
        for (qsizetype i = 0; i < headings.size(); ++i)
            example[headings[i]] = cells.value(i);
        examples += example;
    }
    return examples;
}
