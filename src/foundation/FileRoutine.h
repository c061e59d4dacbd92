// What every loader and every writer of a data file has in common: how its errors are told.
#pragma once

#include "platform/files/DataFile.h"
#include "platform/values/RuntimeError.h"

#include <functional>

/// One load of a data file. Each statement that fails is told, with the loader's title, and passed over by itself.
/// After 25 messages the rest are counted, and one last box tells how many more there were.
class Loader
{
public:
    /// Opens the file; a failure is told, and every later read fails, too.
    Loader(const QString &title, const QString &path);
    /// Closes the file and tells of the errors that were only counted.
    ~Loader();
    Loader(const Loader &) = delete;
    Loader &operator=(const Loader &) = delete;

    /// One statement.
    void Step(const std::function<void(InputFile &)> &statement);
    /// Statements that are known to fail alike.
    void Fail(RuntimeError::Code code, qint64 times);

    // The reads of a statement that ends in an assignment. "ByText" reads text and converts it, so that what is no
    // number fails with error 13, where a direct read gives 0.
    void Read(qint16 &target);
    void Read(Currency &target);
    void Read(bool &target);
    void Read(QString &target);
    void ReadByText(qint16 &target);
    void ReadByText(Currency &target);
    void ReadByText(float &target);

private:
    void Tell(const RuntimeError &error, qint64 times);
    QString m_title;
    InputFile m_file;
    qint64 m_errors = 0;
};

/// Whether a writer asks for the old file before it deletes it. Most do not: a missing file is an error to them.
enum class OldFile { MustExist, MayBeMissing };

/// A writer: deletes the old file, makes it anew and fills it. The first error is told with the writer's title and ends
/// it. The values are collected before the old file goes, so that an error among them loses nothing.
void RunWriter(const QString &title, const QString &path, OldFile oldFile,
               const std::function<void(OutputFile &)> &fill);

/// Runs steps whose first error is told with a title and ends them.
void RunFileSteps(const QString &title, const std::function<void()> &steps);
