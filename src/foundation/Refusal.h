// Why an entry was refused: the message for the first test that failed, and the field that gets the focus.
#pragma once

#include "platform/desk/Desk.h"

#include <optional>

struct Refusal {
    QString Text;
    QString Focus; ///< name of the control
    bool operator==(const Refusal &) const = default;
};

/// The first of these tests that fails decides.
struct EntryTest {
    bool Passed;
    const char *Text;
    const char *Focus;
};

inline std::optional<Refusal> FirstFailure(std::initializer_list<EntryTest> tests)
{
    for (const EntryTest &test : tests)
        if (!test.Passed)
            return Refusal{QString::fromLatin1(test.Text), QString::fromLatin1(test.Focus)};
    return {};
}
