#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

#include "savrent/cc/encrypt.h"
#include "tools/log_reader/log_printer.h"

namespace
{
namespace fs = std::filesystem;
using qorin_log::cat_request;
using qorin_log::log_kind;

class qorin_log_cat : public testing::Test
{
protected:
    qorin_log_cat()
    {
        std::string pattern = (fs::temp_directory_path() / "qorin_log_XXXXXX").string();
        base_ = mkdtemp(pattern.data());
        call_ = base_ / "2026.03.01_09.15.22_call_log";
        event_ = base_ / "2026.03.01_09.15.22_event_log";
        fs::create_directories(call_);
        fs::create_directories(event_);
    }
    ~qorin_log_cat() override { fs::remove_all(base_); }

    static std::string record(std::string text)
    {
        const auto length = static_cast<std::uint32_t>(text.size());
        savrent::cc::encrypt(text.data(), text.data(), text.size());
        return std::string(reinterpret_cast<const char*>(&length), sizeof(length)) + text;
    }

    static void append(const fs::path& file, const std::string& bytes)
    {
        std::ofstream(file, std::ios::binary | std::ios::app) << bytes;
    }

    int cat(const cat_request& request)
    {
        out_.str("");
        errors_.str("");
        return qorin_log::cat(request, out_, errors_, [] { return true; });
    }

    fs::path base_;
    fs::path call_;
    fs::path event_;
    std::ostringstream out_;
    std::ostringstream errors_;
};

TEST_F(qorin_log_cat, prints_files_and_directories_in_order_and_by_kind)
{
    append(call_ / "1000000.txt", record("first ") + record("line\n"));
    append(call_ / "1000001.txt", record("second\n"));
    append(call_ / "999999.txt", record("earlier\n"));
    append(call_ / "notes.txt", "not a log");
    append(event_ / "1000000.txt", record("event\n"));

    EXPECT_EQ(0, cat({{base_}, {}, false}));
    EXPECT_EQ("earlier\nfirst line\nsecond\nevent\n", out_.str());
    EXPECT_EQ(0, cat({{base_}, log_kind::event, false}));
    EXPECT_EQ("event\n", out_.str());
    EXPECT_EQ(0, cat({{call_.string() + "/", event_}, log_kind::call, false}));
    EXPECT_EQ("earlier\nfirst line\nsecond\n", out_.str());
    EXPECT_EQ(0, cat({{call_ / "1000001.txt", call_ / "1000000.txt"}, {}, false}));
    EXPECT_EQ("second\nfirst line\n", out_.str());
    EXPECT_EQ("", errors_.str());
}

TEST_F(qorin_log_cat, tells_the_byte_offset_of_damage_and_prints_what_was_whole)
{
    const std::string whole = record("whole\n");
    struct damage
    {
        const char* name;
        std::string bytes;
        std::size_t offset;
        const char* message;
    };
    const damage cases[] = {
        {"cut_text", whole + record("cut short\n").substr(0, 9), 10, "truncated record at byte offset 10"},
        {"cut_length", whole + "\x05", 10, "truncated record at byte offset 10"},
        {"foreign", "#!/bin/sh\necho no log at all\n", 0, "no log record at byte offset 0: its length would be"},
        {"other_key", whole + std::string("\x04\0\0\0abcd", 8), 10, "no log record at byte offset 10: its text"},
        {"not_scrambled", whole + std::string("\x14\0\0\0[INFO] a plain text\n", 24), 10,
         "no log record at byte offset 10: its text"},
        {"arbitrary", whole + record("\x81\x02\xf3u\xe5v\xc7\x90w\xfa"), 10,
         "no log record at byte offset 10: its text"},
    };
    for (const damage& damaged : cases)
    {
        const fs::path file = base_ / (std::string(damaged.name) + ".txt");
        append(file, damaged.bytes);
        append(call_ / "1000000.txt", "");
        EXPECT_EQ(1, cat({{file}, {}, false})) << damaged.name;
        EXPECT_EQ(damaged.offset == 0 ? "" : "whole\n", out_.str()) << damaged.name;
        EXPECT_NE(std::string::npos, errors_.str().find(file.string() + ": " + damaged.message)) << errors_.str();
    }
    EXPECT_EQ(1, cat({{base_ / "missing"}, {}, false}));
    EXPECT_NE(std::string::npos, errors_.str().find("missing: no such file or directory"));
}

TEST_F(qorin_log_cat, spells_out_control_characters_of_an_application)
{
    append(call_ / "1000000.txt", record("write(\x1b[1mGr\xc3\xbcn \x1b[0m,\f\x7f\t)\r\n") + record("next\n"));
    EXPECT_EQ(0, cat({{call_}, {}, false}));
    EXPECT_EQ("write(\\x1B[1mGr\xc3\xbcn \\x1B[0m,\\x0C\\x7F\t)\r\nnext\n", out_.str());
    EXPECT_EQ("", errors_.str());
}

TEST_F(qorin_log_cat, goes_on_behind_a_damaged_file)
{
    append(call_ / "1000000.txt", "broken");
    append(call_ / "1000001.txt", record("readable\n"));
    EXPECT_EQ(1, cat({{call_}, {}, false}));
    EXPECT_EQ("readable\n", out_.str());
}

TEST_F(qorin_log_cat, follows_growth_and_the_change_to_the_next_file)
{
    append(call_ / "1000000.txt", record("one\n"));
    // Each look at the clock lets the log grow by the next step, some of them half a record.
    const std::string three = record("three\n");
    int look = 0;
    const auto stop = [&]
    {
        switch (look++)
        {
        case 1:
            append(call_ / "1000000.txt", record("two\n") + three.substr(0, 6));
            break;
        case 2:
            append(call_ / "1000000.txt", three.substr(6));
            append(call_ / "1000001.txt", record("four\n"));
            break;
        case 3:
            append(call_ / "1000001.txt", record("five\n"));
            break;
        default:
            break;
        }
        return look > 5;
    };
    EXPECT_EQ(0, qorin_log::cat({{call_}, {}, true}, out_, errors_, stop));
    EXPECT_EQ("one\ntwo\nthree\nfour\nfive\n", out_.str());
    EXPECT_EQ("", errors_.str());
}
} // namespace
