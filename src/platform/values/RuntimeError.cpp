#include "platform/values/RuntimeError.h"

using namespace Qt::Literals::StringLiterals;

QString RuntimeError::Description() const
{
    switch (Number) {
    case InvalidProcedureCall: return u"Invalid procedure call or argument"_s;
    case Overflow: return u"Overflow"_s;
    case OutOfMemory: return u"Out of memory"_s;
    case SubscriptOutOfRange: return u"Subscript out of range"_s;
    case DivisionByZero: return u"Division by zero"_s;
    case TypeMismatch: return u"Type mismatch"_s;
    case InternalError: return u"Internal error"_s;
    case BadFileNumber: return u"Bad file name or number"_s;
    case FileNotFound: return u"File not found"_s;
    case FileAlreadyOpen: return u"File already open"_s;
    case DeviceError: return u"Device I/O error"_s;
    case DiskFull: return u"Disk full"_s;
    case InputPastEnd: return u"Input past end of file"_s;
    case PermissionDenied: return u"Permission denied"_s;
    case PathFileAccess: return u"Path/File access error"_s;
    case PathNotFound: return u"Path not found"_s;
    }
    return {};
}

QString RuntimeError::Text() const
{
    return u"Error %1: %2"_s.arg(int(Number)).arg(Description());
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
