#pragma once

#include <QApplication>
#include <QTest>

/// One test class of a test program. A program holds the classes of one room; its first argument names the class to
/// run, by the name of the class's file without the ending, and the other arguments are those of Qt Test.
struct TestEntry
{
    const char* file;                  ///< Source file of the class, as the compiler names it.
    int (*run)(int argc, char** argv); ///< Runs all of the class's functions; returns the number of failures.
};

/// Adds a class to the program before main() runs.
class TestRegistration
{
public:
    explicit TestRegistration(const TestEntry& entry);
};

/// For a test that wants no application object at all.
struct NoApplication
{
    NoApplication(int& /*argc*/, char** /*argv*/) {}
};

/// Creates the application object, then the test object, and runs it.
template <class Test, class Application>
int RunTest(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    const Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/// Makes \p Class a part of the test program, with an application object of class \p Application.
#define SOFTCLOTH_TEST_WITH(Class, Application)                                                                        \
    static const TestRegistration g_registrationOf##Class({__FILE__, &RunTest<Class, Application>});

/// Makes \p Class a part of the test program; it may use widgets.
#define SOFTCLOTH_TEST(Class) SOFTCLOTH_TEST_WITH(Class, QApplication)
