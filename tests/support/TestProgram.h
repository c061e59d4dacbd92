// Many test classes in one program: each file registers its class under its own name, and the program runs the one that
// is named first on its command line, the rest of which goes to the test library.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

using MakeTest = std::function<std::unique_ptr<QObject>()>;

/// Adds the tests of a source file. Returns true, so that it can stand in an initializer.
bool RegisterTest(const char *fileName, const MakeTest &make);

/// Runs the test class that argv[1] names. Ends with 2, and tells the names, where there is none of that name.
int RunRegisteredTest(int argc, char **argv);

#define REGISTER_TEST(Class)                                                                                           \
    [[maybe_unused]] static const bool Registered##Class =                                                             \
        RegisterTest(__FILE_NAME__, [] { return std::make_unique<Class>(); });
