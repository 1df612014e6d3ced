#include "api/api_log_print.h"

#include <string>

#include <gtest/gtest.h>

#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"
#include "tests/support/text_form.h"

namespace
{
using test_support::installation;

#pragma GCC diagnostic ignored "-Wformat-nonliteral"

TEST(api_log_print, a_line_has_time_type_and_thread)
{
    const installation place;
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_WARNING, "before %d\n", 1);
    place.start_logging();
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "after %s\n", "it");
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ADDITIONAL, "more\n");
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_UNDEFINED, "untyped\n");

    const std::string time = std::string(test_support::time_form) + ": ";
    const std::string forms[] = {"[WARNING] [@] before 1\n", "[ERROR] [@] after it\n", "  - [@] more\n",
                                 "[@] untyped\n"};
    const std::vector<std::string> records = place.event_records();
    ASSERT_EQ(std::size(forms), records.size());
    for (std::size_t i = 0; i < records.size(); ++i)
        EXPECT_TRUE(test_support::has_form(records[i], time + forms[i])) << records[i];
}

TEST(api_log_print, the_screen_shows_lines_only_while_that_is_on)
{
    testing::internal::CaptureStdout();
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "no configuration yet\n");
    EXPECT_EQ("", testing::internal::GetCapturedStdout());

    const installation place("on");
    ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(nullptr));
    testing::internal::CaptureStdout();
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "shown\n");
    const std::string shown = testing::internal::GetCapturedStdout();
    EXPECT_NE(std::string::npos, shown.find("[INFO] [")) << shown;
    EXPECT_TRUE(shown.ends_with("] shown\n")) << shown;
}

TEST(api_log_print, a_format_of_512_characters_does_not_reach_the_file)
{
    const installation place;
    place.start_logging();
    // Compilers suspect a format that is no literal and has no argument.
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, std::string(511, 'a').c_str(), 0);
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, std::string(512, 'b').c_str(), 0);
    ASSERT_EQ(1u, place.event_records().size());
    EXPECT_TRUE(place.event_records()[0].ends_with(std::string(511, 'a')));
}

TEST(api_log_print, a_message_that_fills_the_buffer_passes_and_a_longer_one_ends_the_process)
{
    const installation place;
    place.start_logging();
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "%s", std::string(1023, 'x').c_str());
    EXPECT_TRUE(place.event_text().ends_with(std::string(1023, 'x')));
    EXPECT_DEATH(QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "%s", std::string(1024, 'x').c_str()), "does not fit");
}
} // namespace
