// vectors FOLDER: runs every worked case of the folder's JSON files and tells each difference. The name of a file, up
// to its first "-" or ".", is the area; files of an area that is not built yet are counted as skipped.
#include "Cases.h"

#include "RecordingDesk.h"

#include "platform/values/Locale.h"
#include "platform/windows/Application.h"

#include <QDir>
#include <QJsonDocument>
#include <QMap>
#include <QTextStream>

namespace {
const QMap<QString, RunCase> Areas{
    {QStringLiteral("files"), RunFilesCase},       {QStringLiteral("budget"), RunBudgetCase},
    {QStringLiteral("forecast"), RunForecastCase}, {QStringLiteral("overhead"), RunOverheadCase},
    {QStringLiteral("scan"), RunScanCase},         {QStringLiteral("commitments"), RunCommitmentsCase},
    {QStringLiteral("projects"), RunProjectsCase},
};
}

int main(int argc, char **argv)
{
    // Windows are only filled and read, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv, QStringLiteral("Tallymere"));
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    QTextStream out(stdout);
    if (argc != 2) {
        out << "usage: vectors FOLDER\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    int passed = 0;
    int failed = 0;
    int skipped = 0;
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QJsonParseError error;
        const QJsonDocument document =
            file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &error) : QJsonDocument();
        if (!document.isArray()) {
            out << name << ": not a list of cases: " << error.errorString() << '\n';
            ++failed;
            continue;
        }
        const QJsonArray cases = document.array();
        const QString area = name.section(QRegularExpression(QStringLiteral("[-.]")), 0, 0);
        const RunCase run = Areas.value(area);
        for (const QJsonValue value : cases) {
            if (!run) {
                ++skipped;
                continue;
            }
            RecordingDesk desk;
            const QJsonObject one = value.toObject();
            QStringList differences;
            try {
                differences =
                    Differences(one[u"expected"], run(one[u"input"].toObject(), one[u"expected"].toObject(), desk));
            } catch (const RuntimeError &fatal) {
                differences += QStringLiteral("run-time error: ") + fatal.Text();
            }
            differences.isEmpty() ? ++passed : ++failed;
            if (!differences.isEmpty())
                out << name << ": " << one[u"name"].toString() << '\n';
            for (const QString &difference : std::as_const(differences).mid(0, 20))
                out << "    " << difference << '\n';
        }
    }
    out << passed << " passed, " << failed << " failed";
    if (skipped > 0)
        out << ", " << skipped << " skipped";
    out << '\n';
    return failed == 0 && passed > 0 ? 0 : 1;
}
