#include "vellox/opc/ZipWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

using opc::ZipWindow;

namespace {

// As libzip writes: onwards in blocks of any size, and now and then back to what stands there already.
TEST(ZipWindowTest, GivesTheStreamWhatIsWrittenAnywhere) {
    std::mt19937 chance(1);
    std::ostringstream stream;
    ZipWindow window(stream);
    std::string expected;
    for (int i = 0; i < 2000; ++i) {
        const std::string block(chance() % (i % 200 == 0 ? 1'500'000 : 9000), static_cast<char>(chance()));
        const std::size_t end = expected.size();
        const bool goesBack = i % 3 == 0;
        const std::size_t back = i % 2 == 0 ? 5000 : 1'000'000;
        const std::size_t place = goesBack ? end - std::min<std::size_t>(end, chance() % back) : end;
        window.setPlace(place);
        ASSERT_TRUE(window.write(block.data(), block.size()));
        expected.replace(place, block.size(), block);
        ASSERT_EQ(window.getPlace(), place + block.size());
        ASSERT_EQ(window.getSize(), expected.size());
    }
    EXPECT_TRUE(window.flush());
    EXPECT_TRUE(stream.str() == expected); // not to be printed
    stream.setstate(std::ios::badbit);
    window.write("x", 1);
    EXPECT_FALSE(window.flush());
}

} // namespace
