#include "core/runtime/localechars.h"

#include <gtest/gtest.h>

#include <clocale>

// Runs every core test under the machine's locale, as the program does once Qt has set it.
int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    kelvora::EstablecerLocale(kelvora::LeerLocaleSistema());
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
