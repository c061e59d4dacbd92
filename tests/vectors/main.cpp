// vectors FOLDER: runs every worked case of the folder's JSON files and tells each difference. The name of a file, up
// to its first "-" or ".", is the area; files of an area that is not built yet are counted as skipped.
// vectors --falsify FOLDER: changes what is expected, each kind of thing once in each file, and tells each change that
// makes no difference.
#include "Cases.h"

#include "RecordingDesk.h"
#include "Windows.h"

#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"

#include <QDir>
#include <QJsonDocument>
#include <QMap>
#include <QSet>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

const QMap<QString, RunCase> Areas{
    {u"files"_s, RunFilesCase},
    {u"budget"_s, RunBudgetCase},
    {u"forecast"_s, RunForecastCase},
    {u"overhead"_s, RunOverheadCase},
    {u"scan"_s, RunScanCase},
    {u"commitments"_s, RunCommitmentsCase},
    {u"projects"_s, RunProjectsCase},
    {u"payoff"_s, RunPayOffCase},
    {u"loans"_s, RunLoansCase},
    {u"amortization"_s, RunAmortizationCase},
    {u"rates"_s, RunRatesCase},
    {u"savings"_s, RunSavingsCase},
    {u"wages"_s, RunWagesCase},
    {u"hours"_s, RunHoursCase},
    {u"averagenet"_s, RunAverageNetCase},
    {u"shopping"_s, RunShoppingCase},
    {u"setup"_s, RunSetupCase},
};

/// The toolkit's plugin without a display tells what it cannot do; nobody needs to know.
void TellWarnings(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(u"This plugin does not support"_s))
        QTextStream(stderr) << text << '\n';
}

struct Counts {
    int Passed = 0;
    int Failed = 0;
    int Skipped = 0;
};

/// What the program makes of a case; a text where it ends with an error.
QJsonValue Answer(RunCase run, const QJsonObject &input)
{
    RecordingDesk desk;
    RegisterWindows();
    QJsonValue answer;
    try {
        answer = run(input, desk);
    } catch (const RuntimeError &error) {
        answer = u"run-time error: "_s + error.Text();
    } catch (const std::exception &error) {
        answer = QString::fromUtf8(error.what());
    }
    TheWindows.Reset();
    return answer;
}

void Tell(QTextStream &out, const QString &file, const QJsonObject &one, const QStringList &lines)
{
    out << file << ": " << one[u"name"].toString() << '\n';
    for (const QString &line : lines.mid(0, 20))
        out << "    " << line << '\n';
}

void Check(RunCase run, const QString &file, const QJsonArray &cases, Counts &counts, QTextStream &out)
{
    for (const QJsonValue value : cases) {
        const QJsonObject one = value.toObject();
        const QStringList differences = Differences(one[u"expected"], Answer(run, one[u"input"].toObject()));
        differences.isEmpty() ? ++counts.Passed : ++counts.Failed;
        if (!differences.isEmpty())
            Tell(out, file, one, differences);
    }
}

/// Runs only cases that hold something of a kind that was not changed yet in this file.
void Falsify(RunCase run, const QString &file, const QJsonArray &cases, Counts &counts, QTextStream &out)
{
    QSet<QString> kinds;
    const auto isNew = [&](const Falsified &change) { return !kinds.contains(change.Kind); };
    for (const QJsonValue value : cases) {
        const QJsonObject one = value.toObject();
        const QJsonValue expected = one[u"expected"];
        const QList<Falsified> possible = Falsifications(expected, expected);
        if (std::none_of(possible.begin(), possible.end(), isNew))
            continue;
        const QJsonValue answer = Answer(run, one[u"input"].toObject());
        if (!Differences(expected, answer).isEmpty()) {
            Tell(out, file, one, {u"differs as it stands"_s});
            ++counts.Failed;
            continue;
        }
        const QList<Falsified> changes = Falsifications(expected, answer);
        for (const Falsified &change : changes) {
            if (!isNew(change))
                continue;
            kinds += change.Kind;
            const bool noticed = !Differences(change.Value, answer).isEmpty();
            noticed ? ++counts.Passed : ++counts.Failed;
            if (!noticed)
                Tell(out, file, one, {change.Kind + u" makes no difference"_s});
        }
        for (const Falsified &change : possible)
            kinds += change.Kind; // a list that stands for any of its texts has other kinds than it looks
    }
}

} // namespace

int main(int argc, char **argv)
{
    // No display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(TellWarnings);
    Application application(argc, argv, u"Tallymere"_s);
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    QTextStream out(stdout);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool falsify = arguments.removeOne(u"--falsify"_s);
    if (arguments.size() != 1) {
        out << "usage: vectors [--falsify] FOLDER\n";
        return 2;
    }
    const QDir folder(arguments.first());
    const QStringList names = folder.entryList({u"*.json"_s}, QDir::Files, QDir::Name);
    Counts counts;
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QJsonParseError error;
        const QJsonDocument document =
            file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &error) : QJsonDocument();
        if (!document.isArray()) {
            out << name << ": not a list of cases: " << error.errorString() << '\n';
            ++counts.Failed;
            continue;
        }
        const QJsonArray cases = document.array();
        const RunCase run = Areas.value(name.section(QRegularExpression(u"[-.]"_s), 0, 0));
        if (!run)
            counts.Skipped += int(cases.size());
        else
            (falsify ? Falsify : Check)(run, name, cases, counts, out);
    }
    out << counts.Passed << " passed, " << counts.Failed << " failed";
    if (counts.Skipped > 0)
        out << ", " << counts.Skipped << " skipped";
    out << '\n';
    return counts.Failed == 0 && counts.Passed > 0 ? 0 : 1;
}
