#pragma once

#include <QTest>

/**
 * Many tests in one program: each is known by the name of its file, and the program runs the one under whose name it is
 * started. QUORLIN_TEST(Class) replaces QTEST_GUILESS_MAIN(Class), and QUORLIN_GUI_TEST(Class) replaces
 * QTEST_MAIN(Class); a file with a main remains a separate program.
 */
namespace tests {

using Main = int (*)(int argc, char **argv);

/** True in the run that leaves nothing out, where time does not matter. */
inline bool isSlowRun()
{
    return qEnvironmentVariableIsSet("QUORLIN_SLOW");
}

/** How often something is tried: @p few times, and @p many in a slow run. */
inline int repetitions(int few, int many)
{
    return isSlowRun() ? many : few;
}

/** Remembers a test; @p file is the path of its source. Returns true, for the sake of an initialiser. */
bool remember(const char *file, Main main);

template<class Test> int mainWithoutWindows(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template<class Test, class Application> int mainWithWindows(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    const Application app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace tests

#define QUORLIN_REMEMBER_TEST(Class, ...)                                                                              \
    [[maybe_unused]] static const bool isKnown##Class = tests::remember(__FILE__, __VA_ARGS__);

#define QUORLIN_TEST(Class) QUORLIN_REMEMBER_TEST(Class, &tests::mainWithoutWindows<Class>)
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#define QUORLIN_GUI_TEST(Class) QUORLIN_REMEMBER_TEST(Class, &tests::mainWithWindows<Class, QApplication>)
#else
#include <QGuiApplication>
#define QUORLIN_GUI_TEST(Class) QUORLIN_REMEMBER_TEST(Class, &tests::mainWithWindows<Class, QGuiApplication>)
#endif
