#include "platform/files/DataFile.h"

#include "platform/values/Numbers.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

/// UTF-8; a value that is not is Windows-1252, so that old files load.
QString Decoded(QByteArrayView bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; }))
        return QString::fromLatin1(bytes); // ASCII needs no decoder, which would take most of the time of a load
    // Only the file's own byte-order mark is skipped, not one in a value.
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    // Windows-1252 is Latin-1 but for these 32 signs; its five gaps stay control signs.
    static constexpr char16_t signs[] =
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152"
        u"\u008D\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122"
        u"\u0161\u203A\u0153\u009D\u017E\u0178";
    QString old = QString::fromLatin1(bytes);
    for (QChar &c : old)
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0)
            c = signs[c.unicode() - 0x80];
    return old;
}

QString WithPlatformSeparators(QString path)
{
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

[[noreturn]] void RaiseMissing(const QString &path)
{
    RaiseError(QFileInfo(QFileInfo(path).path()).isDir() ? RuntimeError::FileNotFound : RuntimeError::PathNotFound);
}

/// A file without a write bit is protected from every user, root included; any other one from those who may not write
/// to it, although the folder may let them delete it.
bool IsWriteProtected(const QFileInfo &file)
{
    constexpr auto writeBits = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return file.exists() &&
           (!(file.permissions() & writeBits) ||
            ::faccessat(AT_FDCWD, QFile::encodeName(file.filePath()).constData(), W_OK, AT_EACCESS) != 0);
}

/// A pipe would hold the program up until somebody reads it. A device of characters says itself what it takes.
bool IsWritable(const QFileInfo &file)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(file.filePath()).constData(), &status) != 0)
        return !file.exists();
    return (S_ISREG(status.st_mode) || S_ISCHR(status.st_mode)) && !IsWriteProtected(file);
}

/// Where a file that is to be written lies. A folder in another letter case is found; the file itself is made in the
/// spelling that is asked for, or a second list whose name differs in case alone would be overwritten. A symbolic link
/// in any spelling leads to its target. Empty without a name.
QString WritingPath(const QString &givenPath)
{
    const QFileInfo given(WithPlatformSeparators(givenPath));
    if (given.fileName().isEmpty())
        return {};
    if (const QString existing = ExistingPath(givenPath); QFileInfo(existing).isSymLink())
        return existing;
    return ExistingPath(given.path()) + QLatin1Char('/') + given.fileName();
}

/// Error 61 if the disk lacks the room for a file of so many bytes once the old one is gone.
void RequireRoom(const QFileInfo &oldFile, qint64 bytes)
{
    const QByteArray path = QFile::encodeName(oldFile.canonicalFilePath());
    struct stat old = {};
    struct statvfs disk = {};
    if (::stat(path.constData(), &old) != 0 || ::statvfs(path.constData(), &disk) != 0 || disk.f_blocks == 0)
        return; // a disk that does not tell its room is known to be full only by writing to it
    // The room of a file that has another name as well does not become free.
    const qint64 freed = old.st_nlink == 1 ? qint64(old.st_blocks) * 512 : 0;
    if (qint64(disk.f_bavail) * qint64(disk.f_frsize) + freed < bytes)
        RaiseError(RuntimeError::DiskFull);
}

/// The file of that name if it may be deleted, else errors 53 and 75.
QFileInfo Deletable(const QString &path)
{
    const QFileInfo file(ExistingPath(path));
    if (!file.exists())
        RaiseMissing(file.filePath());
    if (!file.isFile() || IsWriteProtected(file))
        RaiseError(RuntimeError::PathFileAccess);
    return file;
}

/// What is deleted is what a symbolic link leads to. The link stays, and the new file is made in its target's place.
void Remove(const QFileInfo &file)
{
    std::error_code error;
    if (!std::filesystem::remove(QFile::encodeName(file.canonicalFilePath()).toStdString(), error))
        RaiseError(error == std::errc::device_or_resource_busy || error == std::errc::text_file_busy
                       ? RuntimeError::PermissionDenied
                       : RuntimeError::PathFileAccess);
}

/// What to tell of a write that failed. The toolkit tells every failure alike, so the system's own number is needed;
/// it must be taken right after the call.
RuntimeError::Code WriteFailure(int systemError)
{
    return systemError == ENOSPC || systemError == EDQUOT ? RuntimeError::DiskFull : RuntimeError::DeviceError;
}

/// The name of a new file is on the disk only when its folder is. A folder that cannot be asked for that does no harm:
/// its file is there.
void SynchronizeFolder(const QFileInfo &file)
{
    const QString folder = QFileInfo(file.canonicalFilePath()).path();
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

} // namespace

QString ExistingPath(const QString &givenPath)
{
    const QString path = WithPlatformSeparators(givenPath);
    const QFileInfo given(path);
    if (given.exists() || given.isSymLink() || given.fileName().isEmpty())
        return path;
    QString folder; // empty for a name in the present folder
    if (path.contains(QLatin1Char('/'))) {
        folder = ExistingPath(given.path());
        if (!folder.endsWith(QLatin1Char('/')))
            folder += QLatin1Char('/');
    }
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString &name : names)
        if (name.compare(given.fileName(), Qt::CaseInsensitive) == 0)
            return folder + name;
    return folder + given.fileName();
}

bool FileExists(const QString &path)
{
    return QFileInfo(ExistingPath(path)).isFile();
}

void DeleteFile(const QString &path)
{
    Remove(Deletable(path));
}

void InputFile::Open(const QString &givenPath)
{
    Close();
    const QString path = ExistingPath(givenPath);
    const QFileInfo info(path);
    if (!info.exists())
        RaiseMissing(path);
    // A folder, a pipe or a device would fail late or never end.
    if (!info.isFile())
        RaiseError(RuntimeError::PathFileAccess);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        RaiseError(RuntimeError::PathFileAccess);
    if (file.size() > GreatestSize)
        RaiseError(RuntimeError::OutOfMemory);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        RaiseError(RuntimeError::DeviceError);
    OpenBytes(bytes);
}

void InputFile::OpenBytes(const QByteArray &bytes)
{
    m_bytes = bytes;
    m_position = m_bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    m_open = true;
}

void InputFile::Close()
{
    m_bytes.clear();
    m_position = 0;
    m_open = false;
}

QByteArrayView InputFile::NextValue(bool numeric)
{
    if (!m_open)
        RaiseError(RuntimeError::BadFileNumber);
    const qsizetype size = m_bytes.size();
    const auto skip = [&](auto condition) {
        while (m_position < size && condition(m_bytes[m_position]))
            ++m_position;
    };
    const auto endsValue = [](char c) { return c == ',' || IsLineEnd(c); };

    skip([](char c) { return IsBlank(c) || IsLineEnd(c); });
    if (m_position >= size)
        RaiseError(RuntimeError::InputPastEnd);
    qsizetype start = m_position;
    qsizetype end = 0;
    if (m_bytes[start] == '"') {
        ++start;
        ++m_position;
        skip([](char c) { return c != '"'; });
        end = m_position;
        skip([&](char c) { return !endsValue(c); });
    } else {
        skip([&](char c) { return !endsValue(c) && !(numeric && IsBlank(c)); });
        end = m_position;
        if (numeric)
            skip(IsBlank); // a comma behind the blanks still belongs to the number
    }
    if (m_position < size && m_bytes[m_position] == ',')
        ++m_position;
    if (end - start > GreatestValue)
        RaiseError(RuntimeError::OutOfMemory);
    return QByteArrayView(m_bytes).sliced(start, end - start);
}

QString InputFile::NextNumber()
{
    const QString text = Decoded(NextValue(true)).trimmed();
    return IsPlainNumber(text) ? text : u"0"_s;
}

qint16 InputFile::InputInteger()
{
    return ToInteger(NextNumber(), Dialect::File);
}

Currency InputFile::InputCurrency()
{
    return ToCurrency(NextNumber(), Dialect::File);
}

float InputFile::InputSingle()
{
    return ToSingle(NextNumber(), Dialect::File);
}

bool InputFile::InputBoolean()
{
    const QString text = Decoded(NextValue(true)).trimmed();
    if (text.compare(QLatin1String("#TRUE#"), Qt::CaseInsensitive) == 0)
        return true;
    return IsPlainNumber(text) && text.contains(QRegularExpression(u"^[^eE]*[1-9]"_s));
}

QString InputFile::InputString()
{
    return Decoded(NextValue(false));
}

bool InputFile::AtEnd() const
{
    return m_position >= m_bytes.size();
}

QString InputFile::InputLine()
{
    if (!m_open)
        RaiseError(RuntimeError::BadFileNumber);
    if (AtEnd())
        RaiseError(RuntimeError::InputPastEnd);
    const qsizetype start = m_position;
    while (m_position < m_bytes.size() && !IsLineEnd(m_bytes[m_position]))
        ++m_position;
    const QByteArrayView line = QByteArrayView(m_bytes).sliced(start, m_position - start);
    if (m_position < m_bytes.size()) {
        const bool carriageReturn = m_bytes[m_position++] == '\r';
        if (carriageReturn && m_position < m_bytes.size() && m_bytes[m_position] == '\n')
            ++m_position;
    }
    return Decoded(line);
}

void OutputFile::Collect()
{
    m_collected.clear();
    m_collecting = true;
}

void OutputFile::Replace(const QString &path, OldFile oldFile)
{
    if (oldFile == OldFile::MustExist || FileExists(path)) {
        const QFileInfo old = Deletable(path);
        RequireRoom(old, m_collected.size());
        m_permissions = old.permissions();
        Remove(old);
    }
    Open(path);
    Close();
}

void OutputFile::Open(const QString &givenPath)
{
    m_file.close();
    const QString path = WritingPath(givenPath);
    if (path.isEmpty() || !IsWritable(QFileInfo(path)))
        RaiseError(RuntimeError::PathFileAccess);
    m_file.setFileName(path);
    errno = 0;
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        m_collecting = false;
        // What a user hides from others stays hidden. A disk without permissions refuses, which does no harm.
        if (const auto permissions = std::exchange(m_permissions, {}))
            m_file.setPermissions(*permissions);
        WriteBytes(std::exchange(m_collected, {}));
        return;
    }
    if (WriteFailure(errno) == RuntimeError::DiskFull)
        RaiseError(RuntimeError::DiskFull);
    RaiseError(QFileInfo(QFileInfo(path).path()).isDir() ? RuntimeError::PathFileAccess : RuntimeError::PathNotFound);
}

void OutputFile::Close()
{
    if (!m_file.isOpen())
        return;
    errno = 0;
    bool written = m_file.flush();
    // On the disk, not only on its way there: the old file is gone. A device that cannot be asked for that says EINVAL.
    written = written && (::fsync(m_file.handle()) == 0 || errno == EINVAL);
    const int writeError = errno;
    errno = 0;
    m_file.close();
    if (!written || m_file.error() != QFile::NoError)
        RaiseError(WriteFailure(written ? errno : writeError));
    SynchronizeFolder(QFileInfo(m_file.fileName()));
}

void OutputFile::Write(qint16 value)
{
    WriteLine(PlainText(value));
}

void OutputFile::Write(Currency value)
{
    WriteLine(PlainText(value));
}

void OutputFile::Write(float value)
{
    WriteLine(PlainText(value));
}

void OutputFile::Write(bool value)
{
    WriteLine(value ? u"#TRUE#"_s : u"#FALSE#"_s);
}

void OutputFile::Write(const QString &value)
{
    QString quoted(value.size() + 2, QLatin1Char('"'));
    std::copy(value.begin(), value.end(), quoted.begin() + 1);
    WriteLine(quoted);
}

void OutputFile::WriteLine(const QString &value)
{
    QByteArray line = value.toUtf8();
    line += "\r\n";
    if (m_collecting) {
        m_collected += line;
        return;
    }
    if (!m_file.isOpen())
        RaiseError(RuntimeError::BadFileNumber);
    WriteBytes(line);
}

void OutputFile::WriteBytes(const QByteArray &bytes)
{
    errno = 0;
    if (m_file.write(bytes) != bytes.size())
        RaiseError(WriteFailure(errno));
}
