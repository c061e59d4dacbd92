// The delimited text files that hold the household: one value per statement, written and read back by type.
//
// Writing: a value a line, ended by CR LF; text between double quotes with nothing escaped; numbers with "." whatever
// the locale; Booleans as #TRUE# and #FALSE#. Files are UTF-8.
// Reading: blanks and line ends ahead of a value are skipped. A value that begins with a quote runs to the next quote,
// and the rest of the line up to a comma or the line end is dropped; any other value runs to the next comma or line
// end, and for a number a blank ends it too. Text that is no number reads as 0. Past the last value: error 62.
#pragma once

#include "platform/values/Currency.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <optional>

/// The path of an existing file, which is found whatever the letter case of its name and folders; where there is none,
/// the given name in the folder as it is spelt on the disk. "\" counts as a separator.
QString ExistingPath(const QString &path);

/// Whether there is a file of that name, in any letter case.
bool FileExists(const QString &path);

/// Deletes a file, or what a symbolic link leads to: error 53 where there is none; 75 where it is no plain file, has no
/// write bit, for every user, cannot be written by this user, or cannot be deleted.
void DeleteFile(const QString &path);

/// A data file opened for input. Every read raises error 52 while no file is open.
class InputFile
{
public:
    InputFile() = default;
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    /// The greatest file that is taken; the greatest lawful household is well below it.
    static constexpr qint64 GreatestSize = qint64(512) << 20;
    /// The longest value in bytes; a longer one is passed over with error 7. An entry field holds 32,767 characters of
    /// up to three bytes, and what the program has written it must read.
    static constexpr qsizetype GreatestValue = qsizetype(128) * 1024;

    /// Error 53 or 76 where there is none, 75 where it is no plain file or cannot be read, 7 beyond GreatestSize.
    void Open(const QString &path);
    /// Reads from memory as if it were a file.
    void OpenBytes(const QByteArray &bytes);
    void Close();

    qint16 InputInteger();    ///< a fraction is rounded, ties to even; error 6 beyond 16 bits
    Currency InputCurrency(); ///< error 6 beyond the range
    float InputSingle();      ///< error 6 beyond the range
    bool InputBoolean();      ///< #TRUE#, #FALSE# in any letter case, or a number
    QString InputString();
    /// One line without its end, for plain text files; error 62 past the last one.
    QString InputLine();
    bool AtEnd() const; ///< nothing is left, for InputLine

private:
    QByteArrayView NextValue(bool numeric);
    QString NextNumber();

    QByteArray m_bytes;
    qsizetype m_position = 0;
    bool m_open = false;
};

/// Whether a writer asks for the old file before it deletes it. Most do not: a missing file is an error to them.
enum class OldFile { MustExist, MayBeMissing };

/// A data file opened for output. What cannot be written is told at the write or at the latest at Close:
/// error 61 for a full disk, 57 for a failing device. After Close the file is on the disk. A symbolic link is followed.
class OutputFile
{
public:
    /// Takes what is written from now on into memory; the next Open or Replace writes it out. So an error among the
    /// values comes before any file is touched.
    void Collect();
    /// Deletes the old file and makes the new one of what was collected. What can fail before the deletion does, and
    /// then the old file stays: the errors of DeleteFile, and error 61 on a disk without the room.
    void Replace(const QString &path, OldFile oldFile);
    /// Creates or empties the file; error 76 where its folder is missing, 75 where it has no write bit, for every user,
    /// cannot be written by this user or is a pipe, or cannot be created.
    void Open(const QString &path);
    void Close();

    void Write(qint16 value);
    void Write(Currency value);
    void Write(float value);
    void Write(bool value);
    void Write(const QString &value);
    void Write(const char *) = delete; // a literal would silently be taken for a Boolean

private:
    void WriteLine(const QString &value);
    void WriteBytes(const QByteArray &bytes);
    QFile m_file;
    QByteArray m_collected;
    bool m_collecting = false;
    std::optional<QFile::Permissions> m_permissions; ///< of the old file, which the new one takes
};
