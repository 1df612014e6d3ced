#include "savrent/cc/debug_print.h"

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "qorin/log.h"
#include "savrent/cc/err_storage.h"
#include "savrent/cc/internal_log_proc.h"
#include "savrent/cc/sw_err.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"

namespace
{
using savrent::cc::system_config_parser;
using test_support::installation;

std::string printed(const char* format, const char* argument)
{
    testing::internal::CaptureStdout();
    // The format is this test's own parameter.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, format, argument);
#pragma GCC diagnostic pop
    return testing::internal::GetCapturedStdout();
}

/// All lines that wait for the log transport.
std::string transported()
{
    std::string lines;
    savrent::cc::val_obj::savrent_log_info record;
    while (savrent::cc::internal_log_proc::get_instance()->sender().get(record))
        lines.append(record.text).append("|");
    return lines;
}

TEST(debug_print, prints_bare_messages_to_the_screen_when_that_is_on)
{
    const installation place("on");
    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    EXPECT_EQ("two words", printed("two %s", "words"));
    EXPECT_EQ(std::string(639, 'x'), printed("%s", std::string(2000, 'x').c_str()));
}

TEST(debug_print, reads_its_switch_once)
{
    const installation place("on");
    EXPECT_EQ("", printed("%s", "before the configuration"));
    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    EXPECT_EQ("", printed("%s", "after it"));
}

TEST(debug_print, hands_lines_to_the_transport_after_its_initialisation)
{
    const installation place("on", "on");
    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    qorin_debug_print_init();
    EXPECT_EQ("", printed("first %s", "line"));
    (void)transported(); // with the one report that there are no system data

    EXPECT_EQ("", printed("%s", "second"));
    const std::string line = transported();
    EXPECT_NE(std::string::npos, line.find(": ts: 00000000000, cnt: 0000000002, [ERROR] second|")) << line;

    EXPECT_EQ("", printed("long %s", std::string(600, 'x').c_str()));
    EXPECT_NE(std::string::npos, transported().find("[ERROR] long %s|")) << "the format stands for a long message";

    std::string long_format(512, 'x');
    long_format.append("%s");
    EXPECT_EQ("", printed(long_format.c_str(), ""));
    EXPECT_NE(std::string::npos, transported().find("software error, line 127 at debug_print : Message Size Overflow"));
}

TEST(debug_print, keeps_the_latest_lines_when_nobody_takes_them)
{
    const installation place("off", "on");
    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    qorin_debug_print_init();
    for (int i = 0; i < 2000; ++i)
        (void)printed("line %s", std::to_string(i).c_str());
    EXPECT_NE(std::string::npos, transported().find("line 1999|"));
    EXPECT_EQ("", transported());
}

TEST(debug_print, loses_lines_while_the_transport_is_off)
{
    const installation place("on", "off");
    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    qorin_debug_print_init();
    EXPECT_EQ("", printed("%s", "lost"));
    EXPECT_EQ("", transported());
}

TEST(sw_err, keeps_faults_after_its_initialisation_and_drops_the_oldest)
{
    using savrent::cc::err::err_info;
    using savrent::cc::err::err_storage;
    err_info faults[err_storage::capacity];
    int count = -1;
    savrent::cc::err::sw_err::handle("early", "source.cpp", 7);
    err_storage::get_and_remove(faults, count);
    EXPECT_EQ(0, count);

    savrent::cc::err::sw_err::init();
    savrent::cc::err::sw_err::handle("late", "source.cpp", 7);
    err_storage::get_and_remove(faults, count);
    ASSERT_EQ(1, count);
    EXPECT_EQ(190001u, faults[0].code);

    for (std::uint32_t i = 0; i < 130; ++i)
        err_storage::add({i, 0, 0});
    err_storage::get_and_remove(faults, count);
    ASSERT_EQ(128, count);
    EXPECT_EQ(2u, faults[0].code);
    EXPECT_EQ(129u, faults[127].code);
    err_storage::get_and_remove(faults, count);
    EXPECT_EQ(0, count);
}
} // namespace
