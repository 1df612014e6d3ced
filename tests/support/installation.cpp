#include "tests/support/installation.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "api/api_call_logger.h"
#include "savrent/cc/diagnostics.h"
#include "savrent/cc/encrypt.h"
#include "savrent/cc/system_config_parser.h"
#include "tools/log_reader/log_files.h"

namespace test_support
{
namespace fs = std::filesystem;

installation::installation(const std::string& print_out, const std::string& log_trans)
{
    std::string pattern = (fs::temp_directory_path() / "qorin_test_XXXXXX").string();
    EXPECT_NE(nullptr, mkdtemp(pattern.data()));
    directory_ = pattern;
    fs::create_directories(directory_ / "config");
    write_file(config_path(), "[client]\nlog_save_path=./log\nlog_print_out=" + print_out +
                                  "\nkinematics_path=./kin\n[server]\nlog_trans=" + log_trans +
                                  "\n[common]\ntransfer_protocol=tcp\n");
    setenv("SAVRENT_V3", directory_.c_str(), 1);
    savrent::cc::start_diagnostics();
}

installation::~installation()
{
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
}

void installation::start_logging() const
{
    ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(config_path().c_str()));
    qorin_api::logger_initialize();
    qorin_api::logger_take_control();
    ASSERT_TRUE(qorin_api::is_logger_file_open());
}

std::string installation::event_text() const
{
    std::string text;
    for (const std::string& record : event_records())
        text += record;
    return text;
}

std::vector<std::string> installation::calls() const
{
    std::vector<std::string> calls;
    for (const std::string& record : call_records())
    {
        if (record.starts_with('[') && !record.starts_with("[timestamp]"))
            calls.push_back(record.substr(record.find("] ") + 2));
    }
    return calls;
}

std::vector<std::string> installation::records(const std::string& suffix) const
{
    std::vector<std::string> texts;
    for (const fs::path& file : qorin_log::log_files(directory_ / "log", std::nullopt))
    {
        if (!file.parent_path().string().ends_with(suffix))
            continue;
        const std::vector<std::string> further = log_records(file);
        texts.insert(texts.end(), further.begin(), further.end());
    }
    return texts;
}

void write_file(const fs::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

std::string read_file(const fs::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> log_records(const fs::path& file)
{
    const std::string bytes = read_file(file);
    std::vector<std::string> texts;
    std::size_t place = 0;
    while (place + sizeof(std::uint32_t) <= bytes.size())
    {
        std::uint32_t length = 0;
        std::memcpy(&length, bytes.data() + place, sizeof(length));
        place += sizeof(length);
        std::string text = bytes.substr(place, length);
        EXPECT_EQ(length, text.size()) << file << " ends within a record";
        savrent::cc::encrypt(text.data(), text.data(), text.size());
        texts.push_back(text);
        place += length;
    }
    EXPECT_EQ(bytes.size(), place) << file;
    return texts;
}
} // namespace test_support
