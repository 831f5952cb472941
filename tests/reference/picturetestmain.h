// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_PICTURETESTMAIN_H
#define CEIECHART_TESTS_REFERENCE_PICTURETESTMAIN_H

#include <reference/repeatableblending.h>

#include <QApplication>
#include <QtTest>

/*! \brief Like QTEST_MAIN, for tests that compare pictures. */
#define CEIECHART_PICTURE_TEST_MAIN(TestObject)                                                                        \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        reference::restartWithRepeatableBlending(argv);                                                                \
        QApplication application(argc, argv);                                                                          \
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi);                                                               \
        TestObject test;                                                                                               \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

#endif // CEIECHART_TESTS_REFERENCE_PICTURETESTMAIN_H
