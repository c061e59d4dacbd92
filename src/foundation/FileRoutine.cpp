#include "foundation/FileRoutine.h"

#include "platform/desk/Desk.h"
#include "platform/values/Numbers.h"

namespace {
constexpr int MostMessages = 25;
}

Loader::Loader(const QString &title, const QString &path) : m_title(title)
{
    Step([&](InputFile &file) { file.Open(path); });
}

Loader::~Loader()
{
    if (m_errors > MostMessages)
        ShowMessage(
            QStringLiteral("Further errors in this file, not shown one by one: %1").arg(m_errors - MostMessages),
            m_title, Icon::Stop);
}

void Loader::Step(const std::function<void(InputFile &)> &statement)
{
    ResumeNext([&] { statement(m_file); }, [this](const RuntimeError &error) { Tell(error, 1); });
}

void Loader::Fail(RuntimeError::Code code, qint64 times)
{
    Tell(RuntimeError(code), times);
}

void Loader::Tell(const RuntimeError &error, qint64 times)
{
    for (qint64 shown = m_errors; shown < MostMessages && shown < m_errors + times; ++shown)
        ShowMessage(error.Text(), m_title, Icon::Stop);
    m_errors += times;
}

void Loader::Read(qint16 &target)
{
    Step([&](InputFile &file) { target = file.InputInteger(); });
}

void Loader::Read(Currency &target)
{
    Step([&](InputFile &file) { target = file.InputCurrency(); });
}

void Loader::Read(bool &target)
{
    Step([&](InputFile &file) { target = file.InputBoolean(); });
}

void Loader::Read(QString &target)
{
    Step([&](InputFile &file) { target = file.InputString(); });
}

void Loader::ReadByText(qint16 &target)
{
    Step([&](InputFile &file) { target = ToInteger(file.InputString(), Dialect::File); });
}

void Loader::ReadByText(Currency &target)
{
    Step([&](InputFile &file) { target = ToCurrency(file.InputString(), Dialect::File); });
}

void Loader::ReadByText(float &target)
{
    Step([&](InputFile &file) { target = ToSingle(ToDouble(file.InputString(), Dialect::File)); });
}

void RunFileSteps(const QString &title, const std::function<void()> &steps)
{
    ResumeNext(steps, [&](const RuntimeError &error) { ShowMessage(error.Text(), title, Icon::Stop); });
}

void RunWriter(const QString &title, const QString &path, OldFile oldFile,
               const std::function<void(OutputFile &)> &fill)
{
    RunFileSteps(title, [&] {
        OutputFile file;
        file.Collect();
        fill(file);
        if (oldFile == OldFile::MustExist || FileExists(path))
            DeleteFile(path);
        file.Open(path);
        file.Close();
    });
}
