#include "savrent/cc/os_util.h"

#include <string>

#include <gtest/gtest.h>

#include "savrent/cc/encrypt.h"
#include "tests/support/text_form.h"

namespace
{
namespace os_util = savrent::cc::os_util;

TEST(os_util, fixes_relative_paths_for_a_directory_in_front)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},   {"./a", "/a"}, {"../a/", "/../a"}, {"abc/", "abc"},       {".", ""},     {"..", "/.."},
        {"./", ""}, {"/", ""},     {"/x", "/x"},       {".hidden", "hidden"}, {"a//", "a/"},
    };
    for (const auto& [given, expected] : cases)
    {
        std::string path = given;
        os_util::fix_path(path);
        EXPECT_EQ(expected, path) << given;
    }
}

TEST(os_util, takes_only_a_leading_dot_for_relative)
{
    EXPECT_FALSE(os_util::is_abs_path(""));
    EXPECT_FALSE(os_util::is_abs_path("./x"));
    EXPECT_TRUE(os_util::is_abs_path("x"));
    EXPECT_TRUE(os_util::is_abs_path("/x"));
}

TEST(os_util, writes_the_time_with_three_digits_of_milliseconds)
{
    std::string previous;
    for (int i = 0; i < 30; ++i)
    {
        std::string now;
        os_util::get_current_time_string(now);
        EXPECT_TRUE(test_support::has_form(now, test_support::time_form)) << now;
        EXPECT_LE(previous, now);
        previous = now;
        os_util::sleep_for(std::chrono::milliseconds(50));
    }
}

TEST(encrypt, combines_with_the_key_and_undoes_itself)
{
    // The key as a reader of old logs knows it, twice over.
    const std::string key = "7d0c52e4-91ab-4f3e-8b66-2ad9c1f0375e7d0c52e4-91ab-4f3e-8b66-2ad9c1f0375e";
    const std::string text(50, '\0');
    std::string scrambled(text.size(), 'x');
    savrent::cc::encrypt(text.data(), scrambled.data(), text.size());
    EXPECT_EQ(key.substr(0, 50), scrambled);

    savrent::cc::encrypt(scrambled.data(), scrambled.data(), scrambled.size());
    EXPECT_EQ(text, scrambled);
}
} // namespace
