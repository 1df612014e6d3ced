#include "savrent/cc/config_parser.h"

#include <cstdlib>
#include <stdexcept>

#include <gtest/gtest.h>

#include "savrent/cc/os_util.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"

namespace
{
using savrent::cc::config_parser;
using savrent::cc::system_config_parser;
using test_support::installation;
using test_support::write_file;

TEST(config_parser, reads_one_file_and_ignores_a_later_one)
{
    const installation place;
    write_file(place.directory() / "other.ini", "[client]\nlog_save_path=elsewhere\n");

    config_parser parser;
    ASSERT_TRUE(parser.load_file(place.config_path().c_str()));
    ASSERT_TRUE(parser.load_file((place.directory() / "other.ini").c_str()));
    EXPECT_EQ("./log", parser.parse<std::string>("client.log_save_path", nullptr));
}

TEST(config_parser, takes_the_installation_directory_for_a_null_path)
{
    const installation place;
    config_parser parser;
    EXPECT_TRUE(parser.load_file(nullptr));

    unsetenv("SAVRENT_V3");
    config_parser homeless;
    EXPECT_THROW(homeless.load_file(nullptr), std::logic_error);
}

TEST(config_parser, says_which_file_it_could_not_load_and_why)
{
    const installation place;
    write_file(place.directory() / "twice.ini", "[client]\nkey=1\nkey=2\n");
    write_file(place.directory() / "bare.ini", "[client]\n\nlog_save_path\n");
    const std::pair<const char*, const char*> cases[] = {
        {"missing.ini", ": cannot open file"},
        {"twice.ini", "(3): duplicate key name"},
        {"bare.ini", "(3): '=' character not found in line"},
    };
    for (const auto& [name, reason] : cases)
    {
        const std::string path = place.directory() / name;
        config_parser parser;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(parser.load_file(path.c_str()));
        EXPECT_EQ("configuration file load fauilure, path: " + path + "\n" + path + reason + "\n",
                  testing::internal::GetCapturedStderr());
        EXPECT_FALSE(parser.is_loaded());
    }
}

TEST(config_parser, tells_whether_there_was_a_key_to_look_up)
{
    const installation place;
    config_parser parser;
    bool found = true;
    EXPECT_EQ("", parser.parse<std::string>("client.log_save_path", &found));
    EXPECT_FALSE(found);

    ASSERT_TRUE(parser.load_file(place.config_path().c_str()));
    EXPECT_EQ("", parser.parse<std::string>(nullptr, &found));
    EXPECT_FALSE(found);
    EXPECT_EQ("off", parser.parse<std::string>("server.log_trans", &found));
    EXPECT_TRUE(found);
    EXPECT_THROW((void)parser.parse<std::string>("client.missing", &found), boost::property_tree::ptree_bad_path);
}

TEST(config_parser, prints_every_key_in_file_order)
{
    const installation place;
    write_file(place.directory() / "small.ini", "[b]\nz=1\na=2\n[a]\nk=3\n");
    config_parser parser;
    std::string printed;
    const auto print = [&](const char* section, const char* key, const char* value)
    { printed += std::string(section) + "." + key + "=" + value + ";"; };
    parser.print(print);
    EXPECT_EQ("", printed);

    ASSERT_TRUE(parser.load_file((place.directory() / "small.ini").c_str()));
    parser.print(print);
    EXPECT_EQ("b.z=1;b.a=2;a.k=3;", printed);
    EXPECT_THROW(parser.print({}), std::bad_function_call);
}

TEST(system_config_parser, readers_take_what_is_absent_for_an_empty_value)
{
    const installation place;
    EXPECT_EQ("", savrent::cc::system_config_value("client.log_print_out"));
    EXPECT_FALSE(savrent::cc::os_util::is_tcp_transfer_protocol());

    ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    EXPECT_EQ("", savrent::cc::system_config_value("client.missing"));
    EXPECT_EQ("off", savrent::cc::system_config_value("client.log_print_out"));
    EXPECT_TRUE(savrent::cc::os_util::is_tcp_transfer_protocol());
}
} // namespace
