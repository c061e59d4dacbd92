// The main of a window test: the program's own application object, a United States desktop, no motion.
#pragma once

#include "platform/Application.h"
#include "platform/Locale.h"

#include <QStyleFactory>
#include <QtTest>

#define GUI_TEST_MAIN(Test)                                                                                            \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        Application application(argc, argv);                                                                           \
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));                                       \
        SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));                                               \
        Test test;                                                                                                     \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
