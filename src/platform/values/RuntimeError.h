// The one error type of the program. It is thrown by the platform floor alone; a routine that has a handler by
// design traps it and words the message.
#pragma once

#include <QString>
#include <exception>
#include <functional>

/// A run-time error with its customary number. Description() gives the customary English words.
class RuntimeError : public std::exception
{
public:
    enum Code {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        InternalError = 51,
        BadFileNumber = 52,
        FileNotFound = 53,
        FileAlreadyOpen = 55,
        DeviceError = 57,
        DiskFull = 61,
        InputPastEnd = 62,
        PermissionDenied = 70,
        PathFileAccess = 75,
        PathNotFound = 76,
    };

    explicit RuntimeError(Code code) : Number(code) {}
    QString Description() const;
    /// "Error 53: File not found", as file routines report an error.
    QString Text() const;
    const char *what() const noexcept override { return "RuntimeError"; }

    const Code Number;
};

/// Throws RuntimeError. Apart from it nothing in the program throws.
[[noreturn]] void RaiseError(RuntimeError::Code code);

/// Runs one statement. An error is handed to `handler`, and the caller goes on with the next statement.
/// Returns whether the statement succeeded.
bool ResumeNext(const std::function<void()> &statement, const std::function<void(const RuntimeError &)> &handler);

/// Runs a statement whose errors do not matter.
void IgnoreErrors(const std::function<void()> &statement);
