// What every loader and every writer of a data file has in common: how its errors are told, and how a list of fields is
// walked. The fields of a file are listed once, in a template that takes a Loader to read them and a ListWriter to
// write them.
#pragma once

#include "platform/files/DataFile.h"
#include "platform/values/Dates.h"
#include "platform/values/RuntimeError.h"

#include <functional>

/// How a routine runs each of its statements: what its handler does with an error.
using StatementRunner = std::function<void(const std::function<void()> &)>;

/// Reads values in file order. Each read is one statement, which ends in an assignment: where it fails, the target
/// keeps what it had.
class ValueReader
{
public:
    ValueReader(InputFile &file, StatementRunner run) : m_file(file), m_run(std::move(run)) {}

    // Read directly: text that is no number is 0.
    void Value(qint16 &target);
    void Value(Currency &target);
    void Value(float &target);
    void Value(bool &target);
    void Value(QString &target);
    void Value(DateText &target);
    // Read as text and converted: text that is no number fails with error 13.
    void ByText(qint16 &target);
    void ByText(Currency &target);
    void ByText(float &target);
    /// Read as text; a date is brought into the form mm-dd-yyyy, other text passes through.
    void DashedDate(DateText &target);

protected:
    void Run(const std::function<void()> &statement) { m_run(statement); }

private:
    InputFile &m_file;
    StatementRunner m_run;
};

/// One load of a data file. Each statement that fails is shown, with the loader's title, and passed over by itself.
/// After 25 messages the rest are counted, and one last box tells how many more there were.
class Loader : public ValueReader
{
public:
    Loader(const Loader &) = delete;
    Loader &operator=(const Loader &) = delete;

    /// A list: its count; unless that is 0, the arrays made to fit it, and the fields of each element from 1 on.
    void List(qint16 &count, const std::function<void()> &redim, const std::function<void(int)> &fields);
    /// A list of pairs of values within a record. Those beyond the bound come after the others; each of their two reads
    /// fails, and takes nothing from the file.
    void Pairs(qint16 &count, int bound, const std::function<void(int)> &fields);

private:
    friend void LoadFile(const QString &title, const QString &path, const std::function<void(Loader &)> &fields);
    explicit Loader(const QString &title);
    void Failed(const RuntimeError &error, qint64 times);
    void ShowTheRest() const;

    QString m_title;
    InputFile m_file;
    qint64 m_errors = 0;
};

/// Opens the file, walks its fields and closes it. A failed opening is shown, and every read behind it fails, too.
void LoadFile(const QString &title, const QString &path, const std::function<void(Loader &)> &fields);

/// Writes what a Loader reads.
class ListWriter
{
public:
    explicit ListWriter(OutputFile &file) : m_file(file) {}

    void Value(const auto &value) { m_file.Write(value); }
    void Value(const DateText &date) { m_file.Write(date.Text()); }
    void ByText(const auto &value) { m_file.Write(value); }
    void DashedDate(const DateText &date) { m_file.Write(date.Text()); }
    void List(qint16 count, const std::function<void()> &redim, const std::function<void(int)> &fields);
    /// Error 9 for an element beyond the bound comes from the record itself.
    void Pairs(qint16 count, int bound, const std::function<void(int)> &fields);

private:
    OutputFile &m_file;
};

/// Deletes the old file, makes it anew and fills it. The first error is shown with the writer's title and ends it. The
/// values are collected before the old file goes, so that an error among them loses nothing. Returns whether all went
/// well.
bool SaveFile(const QString &title, const QString &path, OldFile oldFile,
              const std::function<void(ListWriter &)> &fields);

/// Runs steps whose first error is shown with a title and ends them. Returns whether there was none.
bool RunFileSteps(const QString &title, const std::function<void()> &steps);
