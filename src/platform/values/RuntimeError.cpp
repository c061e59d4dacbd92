#include "platform/values/RuntimeError.h"

QString RuntimeError::Description() const
{
    switch (Number) {
    case InvalidProcedureCall: return QStringLiteral("Invalid procedure call or argument");
    case Overflow: return QStringLiteral("Overflow");
    case OutOfMemory: return QStringLiteral("Out of memory");
    case SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case DivisionByZero: return QStringLiteral("Division by zero");
    case TypeMismatch: return QStringLiteral("Type mismatch");
    case InternalError: return QStringLiteral("Internal error");
    case BadFileNumber: return QStringLiteral("Bad file name or number");
    case FileNotFound: return QStringLiteral("File not found");
    case FileAlreadyOpen: return QStringLiteral("File already open");
    case DeviceError: return QStringLiteral("Device I/O error");
    case DiskFull: return QStringLiteral("Disk full");
    case InputPastEnd: return QStringLiteral("Input past end of file");
    case PermissionDenied: return QStringLiteral("Permission denied");
    case PathFileAccess: return QStringLiteral("Path/File access error");
    case PathNotFound: return QStringLiteral("Path not found");
    }
    return {};
}

QString RuntimeError::Text() const
{
    return QStringLiteral("Error %1: %2").arg(int(Number)).arg(Description());
}

void RaiseError(RuntimeError::Code code)
{
    throw RuntimeError(code);
}

bool ResumeNext(const std::function<void()> &statement, const std::function<void(const RuntimeError &)> &handler)
{
    try {
        statement();
        return true;
    } catch (const RuntimeError &error) {
        handler(error);
        return false;
    }
}

void IgnoreErrors(const std::function<void()> &statement)
{
    ResumeNext(statement, [](const RuntimeError &) {});
}
