#include "foundation/FileRoutine.h"

#include "platform/desk/Desk.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int MostMessages = 25;
}

void ValueReader::Value(qint16 &target)
{
    Run([&] { target = m_file.InputInteger(); });
}

void ValueReader::Value(Currency &target)
{
    Run([&] { target = m_file.InputCurrency(); });
}

void ValueReader::Value(float &target)
{
    Run([&] { target = m_file.InputSingle(); });
}

void ValueReader::Value(bool &target)
{
    Run([&] { target = m_file.InputBoolean(); });
}

void ValueReader::Value(QString &target)
{
    Run([&] { target = m_file.InputString(); });
}

void ValueReader::Value(DateText &target)
{
    Run([&] { target = m_file.InputString(); });
}

void ValueReader::ByText(qint16 &target)
{
    Run([&] { target = ToInteger(m_file.InputString(), Dialect::File); });
}

void ValueReader::ByText(Currency &target)
{
    Run([&] { target = ToCurrency(m_file.InputString(), Dialect::File); });
}

void ValueReader::ByText(float &target)
{
    // Rounded twice, to double and then to Single, as files have always been read.
    Run([&] { target = ToSingle(ToDouble(m_file.InputString(), Dialect::File)); });
}

void ValueReader::DashedDate(DateText &target)
{
    Run([&] { target = Format(m_file.InputString(), DateFormat::Dashes); });
}

Loader::Loader(const QString &title)
    : ValueReader(m_file,
                  [this](const std::function<void()> &statement) {
                      ResumeNext(statement, [this](const RuntimeError &error) { Failed(error, 1); });
                  }),
      m_title(title)
{
}

void Loader::Failed(const RuntimeError &error, qint64 times)
{
    for (qint64 shown = m_errors; shown < MostMessages && shown < m_errors + times; ++shown)
        ShowMessage(error.Text(), m_title, Icon::Stop);
    m_errors += times;
}

void Loader::ShowTheRest() const
{
    if (m_errors > MostMessages)
        ShowMessage(u"Further errors in this file, not shown one by one: %1"_s.arg(m_errors - MostMessages), m_title,
                    Icon::Stop);
}

void Loader::List(qint16 &count, const std::function<void()> &redim, const std::function<void(int)> &fields)
{
    Value(count);
    if (count == 0) // the arrays stay as they are
        return;
    Run(redim);
    for (int i = 1; i <= count; ++i)
        fields(i);
}

void Loader::Pairs(qint16 &count, int bound, const std::function<void(int)> &fields)
{
    Value(count);
    for (int i = 1; i <= qMin<int>(count, bound); ++i)
        fields(i);
    if (count > bound)
        Failed(RuntimeError(RuntimeError::SubscriptOutOfRange), 2 * qint64(count - bound));
}

void LoadFile(const QString &title, const QString &path, const std::function<void(Loader &)> &fields)
{
    Loader loader(title);
    loader.Run([&] { loader.m_file.Open(path); });
    fields(loader);
    loader.m_file.Close();
    loader.ShowTheRest();
}

void ListWriter::List(qint16 count, const std::function<void()> &, const std::function<void(int)> &fields)
{
    m_file.Write(count);
    for (int i = 1; i <= count; ++i)
        fields(i);
}

void ListWriter::Pairs(qint16 count, int, const std::function<void(int)> &fields)
{
    m_file.Write(count);
    for (int i = 1; i <= count; ++i)
        fields(i);
}

bool RunFileSteps(const QString &title, const std::function<void()> &steps)
{
    return ResumeNext(steps, [&](const RuntimeError &error) { ShowMessage(error.Text(), title, Icon::Stop); });
}

bool SaveFile(const QString &title, const QString &path, OldFile oldFile,
              const std::function<void(ListWriter &)> &fields)
{
    return RunFileSteps(title, [&] {
        OutputFile file;
        file.Collect();
        ListWriter writer(file);
        fields(writer);
        file.Replace(path, oldFile);
    });
}
