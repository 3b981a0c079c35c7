#include <gtest/gtest.h>

#include "core/Uygulama.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen"
                                                                   : qgetenv("QT_QPA_PLATFORM"));
  // The same net for stray engine failures as the program has.
  Uygulama app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
