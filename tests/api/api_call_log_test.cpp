#include "api/api_call_logger.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "api/api_call_line.h"
#include "api/api_call_log_data.h"
#include "api/api_call_log_param_to_string.h"
#include "api/api_log_print.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"
#include "tests/support/text_form.h"

namespace
{
namespace fs = std::filesystem;
using test_support::installation;
using test_support::read_file;

/// A logged call from beginning to end.
template <class... Arguments>
void logged_call(const char* name, const Arguments&... arguments)
{
    QORIN_API_LOG_BEGIN_INTERNAL();
    QORIN_API_LOG_FUNC_CALL(name, qorin_api::param_to_string(arguments)...);
    qorin_internal_func_call_set_zero();
}

TEST(call_log, an_entry_is_three_records)
{
    const installation place;
    place.start_logging();
    logged_call("qorin_rpc_x_set", 7u, 1.5, "");
    logged_call("qorin_rpc_y");

    const std::vector<std::string> records = place.call_records();
    ASSERT_EQ(6u, records.size());
    const std::string forms[] = {
        "/* [now]:" + std::string(test_support::time_form) + ", ",
        "[timestamp]:############# */ ",
        "[@] qorin_rpc_x_set(7, 1.500000, );\n",
    };
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_TRUE(test_support::has_form(records[i], forms[i])) << records[i];
    EXPECT_TRUE(records[5].ends_with("] qorin_rpc_y();\n")) << records[5];
}

TEST(call_log, lines_from_before_the_start_come_first_and_in_order)
{
    const installation place;
    logged_call("first");
    logged_call("second");
    place.start_logging();
    logged_call("third");
    EXPECT_EQ((std::vector<std::string>{"first();\n", "second();\n", "third();\n"}), place.calls());
}

TEST(call_log, only_the_outermost_call_is_logged_until_one_of_them_ends)
{
    const installation place;
    place.start_logging();
    QORIN_API_LOG_BEGIN_INTERNAL();
    QORIN_API_LOG_FUNC_CALL("outer");
    logged_call("nested");
    logged_call("after the nested one");
    qorin_internal_func_call_set_zero();

    QORIN_API_LOG_BEGIN_INTERNAL();
    QORIN_API_LOG_FUNC_CALL("never ends");
    logged_call("nested in it");
    EXPECT_EQ((std::vector<std::string>{"outer();\n", "after the nested one();\n", "never ends();\n"}), place.calls());
}

TEST(call_log, array_assignments_are_one_record_at_depth_one)
{
    const installation place;
    place.start_logging();
    const double reals[] = {1.5, -0.25};
    const unsigned int words[] = {4294967295u};
    QORIN_API_LOG_DATA_DEF(2, reals, 3);
    qorin_internal_func_call_plus();
    QORIN_API_LOG_DATA_DEF(2, reals, 3);
    QORIN_API_LOG_DATA_DEF(1, words, 4);
    EXPECT_EQ(
        (std::vector<std::string>{"\np_qorin_float_t_arr_3[0] = 1.500000;\np_qorin_float_t_arr_3[1] = -0.250000;\n",
                                  "\np_uint32_t_arr_4[0] = 4294967295;\n"}),
        place.call_records());
}

TEST(call_log, scrambles_a_text_that_is_longer_than_its_buffer)
{
    const installation place;
    place.start_logging();
    std::string text;
    for (int i = 0; i < 4000; ++i)
        text += std::to_string(i) + ",";
    qorin_api::logger_write_line(text);
    qorin_api::logger_write_flush();
    EXPECT_EQ(std::vector{text}, place.call_records());
}

TEST(call_log, both_logs_go_on_to_the_next_file_at_the_10001st_call)
{
    const installation place;
    place.start_logging();
    for (int i = 0; i < 10'000; ++i)
        logged_call("call", i);
    const auto data = qorin_api::api_call_log_data::get_instance();
    const fs::path first = data->get_cur_func_call_file_path();
    const fs::path first_event = data->get_cur_event_log_file_path();
    EXPECT_EQ("1000000.txt", first.filename());

    // A leftover of that name is overwritten, not continued.
    test_support::write_file(first.parent_path() / "1000001.txt", "leftover");
    logged_call("call", 10'000);
    EXPECT_EQ(30'000u, test_support::log_records(first).size());
    EXPECT_EQ(3u, test_support::log_records(first.parent_path() / "1000001.txt").size());
    EXPECT_TRUE(fs::exists(first_event.parent_path() / "1000001.txt"));

    for (int i = 0; i < 10'000; ++i)
        logged_call("call", i);
    EXPECT_FALSE(fs::exists(first.parent_path() / "1000002.txt")) << "later files take 10,001 calls";
    logged_call("call", 10'000);
    EXPECT_TRUE(fs::exists(first.parent_path() / "1000002.txt"));
}

TEST(call_log, the_data_file_tells_where_this_run_logs)
{
    const installation place;
    logged_call("early");
    place.start_logging();
    const std::string data = read_file(place.directory() / "epdlxj");
    ASSERT_EQ(2056u, data.size());
    const std::string call_log = data.c_str();
    EXPECT_TRUE(call_log.starts_with((place.directory() / "log/").string())) << call_log;
    EXPECT_TRUE(call_log.ends_with("_call_log")) << call_log;
    EXPECT_TRUE(std::string(data.c_str() + 1024).ends_with("_event_log"));
    std::uint32_t numbers[2];
    std::memcpy(numbers, data.data() + 2048, sizeof(numbers));
    EXPECT_EQ(1'000'000u, numbers[0]);
    EXPECT_EQ(1u, numbers[1]);

    logged_call("later");
    qorin_api::logger_release_control();
    std::memcpy(numbers, read_file(place.directory() / "epdlxj").data() + 2048, sizeof(numbers));
    EXPECT_EQ(2u, numbers[1]) << "a release writes the counts of that moment";
}

/// Keeps the process's files from growing beyond `size` bytes, as a full disk does.
void limit_file_size(rlim_t size)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = size;
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &limit));
}

TEST(call_log, a_full_disk_costs_the_lines_that_do_not_fit_and_no_more)
{
    const installation place;
    place.start_logging();
    for (int i = 0; i < 100; ++i) // more than what will be said, which is captured in a file too
        logged_call("before");
    const auto data = qorin_api::api_call_log_data::get_instance();
    const std::uintmax_t size = fs::file_size(data->get_cur_func_call_file_path());

    testing::internal::CaptureStderr();
    for (const std::uintmax_t room : {std::uintmax_t{1}, 4 + std::string("[timestamp]:").size(), std::uintmax_t{4000}})
    {
        limit_file_size(size + room);
        for (int i = 0; i < 100; ++i)
        {
            logged_call("during");
            QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "during %d\n", i);
        }
        limit_file_size(RLIM_INFINITY);
        (void)place.call_records(); // which tests that the files end with whole records
        (void)place.event_records();
    }
    logged_call("after");
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "after\n");
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(2, std::count(said.begin(), said.end(), '\n')) << said;
    EXPECT_NE(std::string::npos, said.find("call log: cannot write " + data->get_cur_func_call_file_path() + ": "));
    EXPECT_EQ("before();\n", place.calls().front());
    EXPECT_EQ("after();\n", place.calls().back());
    EXPECT_LT(place.calls().size(), 200u);
    EXPECT_TRUE(place.event_text().ends_with("] after\n"));
}

TEST(call_log, a_data_file_that_cannot_be_written_does_not_lead_the_logs_astray)
{
    using preparation = void (*)(const fs::path&);
    const preparation preparations[] = {
        [](const fs::path& file) { fs::create_directory(file); },
        [](const fs::path& file) { ASSERT_EQ(0, mkfifo(file.c_str(), 0666)); },
        [](const fs::path& file)
        {
            qorin_api::api_call_log_fields foreign = {"/nowhere", "/nowhere", 7, 7};
            const std::string bytes(reinterpret_cast<const char*>(&foreign), sizeof(foreign));
            test_support::write_file(file.parent_path() / "foreign", bytes);
            fs::create_symlink("foreign", file);
        },
    };
    for (const preparation prepare : preparations)
    {
        const installation place;
        prepare(place.directory() / "epdlxj");
        place.start_logging();
        logged_call("written");
        EXPECT_EQ(std::vector<std::string>{"written();\n"}, place.calls());
        const fs::path foreign = place.directory() / "foreign";
        EXPECT_TRUE(!fs::exists(foreign) || read_file(foreign).starts_with("/nowhere"));
        qorin_api::logger_release_control();
    }
}

TEST(call_log, a_link_in_the_place_of_a_log_is_not_followed)
{
    const installation place;
    place.start_logging();
    const fs::path first = qorin_api::api_call_log_data::get_instance()->get_cur_func_call_file_path();
    test_support::write_file(place.directory() / "foreign", "untouched");
    fs::create_symlink(place.directory() / "foreign", first.parent_path() / "1000001.txt");
    testing::internal::CaptureStderr();
    for (int i = 0; i <= 10'000; ++i)
        logged_call("call");
    EXPECT_NE(std::string::npos, testing::internal::GetCapturedStderr().find("1000001.txt: "));
    EXPECT_EQ("untouched", read_file(place.directory() / "foreign"));
    EXPECT_FALSE(qorin_api::is_logger_file_open());
}

TEST(call_log, the_latest_10000_entries_wait_for_a_file)
{
    const installation place;
    testing::internal::CaptureStderr();
    for (int i = 0; i < 10'005; ++i)
    {
        logged_call("call", i);
        QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "message %d\n", i);
    }
    EXPECT_EQ("call log: more than 10000 entries wait for its file, the oldest are dropped\n"
              "event log: more than 10000 entries wait for its file, the oldest are dropped\n",
              testing::internal::GetCapturedStderr());
    place.start_logging();
    EXPECT_EQ(30'000u, place.call_records().size());
    EXPECT_EQ("call(5);\n", place.calls().front());
    EXPECT_EQ(10'000u, place.event_records().size());
    EXPECT_TRUE(place.event_records().front().ends_with("] message 5\n"));
}

TEST(call_log, no_file_stays_open_in_programs_that_start_or_takes_the_place_of_a_standard_stream)
{
    const installation place;
    close(STDIN_FILENO);
    place.start_logging();
    ASSERT_EQ(STDIN_FILENO, open("/dev/null", O_RDONLY | O_CLOEXEC)) << "taken by a log";
    int open_logs = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc/self/fd"))
    {
        std::error_code gone;
        if (!fs::read_symlink(entry.path(), gone).string().starts_with(place.directory().string()))
            continue;
        ++open_logs;
        EXPECT_EQ(FD_CLOEXEC, fcntl(std::stoi(entry.path().filename()), F_GETFD));
    }
    EXPECT_EQ(2, open_logs);

    qorin_api::logger_rest();
    logged_call("late");
    EXPECT_EQ(std::vector<std::string>{"late();\n"}, place.calls()) << "a line opens its file again";
}

TEST(call_log, lines_collect_again_after_a_release)
{
    const installation place;
    place.start_logging();
    logged_call("written");
    qorin_api::logger_release_control();
    EXPECT_FALSE(qorin_api::is_logger_file_open());
    logged_call("collected");
    EXPECT_EQ(std::vector<std::string>{"written();\n"}, place.calls());
    qorin_api::logger_take_control();
    EXPECT_EQ((std::vector<std::string>{"written();\n", "collected();\n"}), place.calls());
}

TEST(call_log, the_base_directory_follows_the_configuration)
{
    // Only a path that begins with '/' stays as it is: "log" is put right behind the installation's name.
    struct expectation
    {
        const char* name;
        const char* save_path;
        const char* base;
    };
    const expectation cases[] = {
        {"dotted", "./log", "/log/"}, {"bare", "log", "log/"}, {"slashed", "./deep/er/", "/deep/er/"}};
    for (const expectation& expected : cases)
    {
        EXPECT_EXIT(
            {
                const installation place;
                test_support::write_file(place.config_path(),
                                         std::string("[client]\nlog_save_path=") + expected.save_path + "\n");
                (void)savrent::cc::system_config_parser::get_instance()->load_file(nullptr);
                qorin_api::logger_initialize();
                const std::string directory = qorin_api::api_call_log_data::get_instance()->fields.call_log_directory;
                const std::string base = place.directory().string() + expected.base;
                const bool good = directory.starts_with(base) && directory.find('/', base.size()) == std::string::npos;
                fs::remove_all(base);
                fs::remove_all(place.directory());
                std::_Exit(good ? 0 : 1);
            },
            testing::ExitedWithCode(0), "")
            << expected.name;
    }
}

TEST(call_log, a_directory_that_does_not_fit_its_field_is_cut)
{
    const auto data = qorin_api::api_call_log_data::get_instance();
    data->set_directories(std::string(2000, 'a'), std::string(1500, 'b'));
    EXPECT_EQ(std::string(1023, 'a') + "/1000000.txt", data->get_cur_func_call_file_path());
    EXPECT_EQ(std::string(1023, 'b') + "/1000000.txt", data->get_cur_event_log_file_path());
}
} // namespace
