#pragma once

#include <QApplication>
#include <QTest>

#include "toolkit/TouchStyle.h"

/// The main function of a test program of screens: the application looks as the program's own does.
#define VEXA_SCREEN_MAIN(Test)                      \
  int main(int argc, char** argv) {                 \
    QApplication application(argc, argv);           \
    QApplication::setStyle(new ::vexa::TouchStyle); \
    Test test;                                      \
    return QTest::qExec(&test, argc, argv);         \
  }
