// The program of the calculations' tests: no display.
#include "TestProgram.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return RunRegisteredTest(argc, argv);
}
