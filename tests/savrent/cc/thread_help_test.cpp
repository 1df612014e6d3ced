#include "savrent/cc/thread_help.h"

#include <atomic>

#include <pthread.h>
#include <sched.h>

#include <gtest/gtest.h>

#include "savrent/cc/os_util.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"

namespace
{
using namespace std::chrono_literals;
using savrent::cc::thread_help;

/// What the lower layers print while `work` runs.
template <class Work>
std::string printed_by(Work&& work)
{
    testing::internal::CaptureStdout();
    work();
    return testing::internal::GetCapturedStdout();
}

class thread_help_lines : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(nullptr)); }

    test_support::installation place_{"on"};
};

TEST_F(thread_help_lines, a_long_name_changes_nothing_and_warns)
{
    EXPECT_NE(std::string::npos, printed_by([] { thread_help::set_this_thread_name("short"); }).find("->short]\n"));
    EXPECT_EQ("set_name: warning thread name is too long : 16\n",
              printed_by([] { thread_help::set_this_thread_name("0123456789abcdef"); }));
    char name[16];
    pthread_getname_np(pthread_self(), name, sizeof(name));
    EXPECT_STREQ("short", name);
}

TEST_F(thread_help_lines, an_impossible_core_costs_only_the_pinning)
{
    const std::string line = printed_by([] { thread_help::set_this_thread_affinity(2000); });
    EXPECT_NE(std::string::npos, line.find("set core#: 2000, (core#: ")) << line;

    thread_help::set_this_thread_affinity(0);
    cpu_set_t cores;
    ASSERT_EQ(0, pthread_getaffinity_np(pthread_self(), sizeof(cores), &cores));
    EXPECT_EQ(1, CPU_COUNT(&cores));
    EXPECT_TRUE(CPU_ISSET(0, &cores));
}

TEST_F(thread_help_lines, a_periodic_task_runs_until_it_is_joined_and_not_again)
{
    std::atomic<int> runs = 0;
    const auto body = std::make_shared<std::function<void()>>([&] { ++runs; });
    const auto task = thread_help::run_periodic_task(body, 2000, "ticker");
    savrent::cc::os_util::sleep_for(200ms);
    thread_help::join_periodic_task(task);
    const int at_join = runs;
    EXPECT_GT(at_join, 20);
    EXPECT_LT(at_join, 120);
    savrent::cc::os_util::sleep_for(20ms);
    EXPECT_EQ(at_join, runs);

    EXPECT_EQ("sync thread id is not running\n", printed_by([&] { thread_help::join_periodic_task(task); }));
    EXPECT_EQ("join_periodic_task failure, thread is nullptr\n",
              printed_by([] { thread_help::join_periodic_task(nullptr); }));
}

TEST_F(thread_help_lines, a_task_can_be_joined_at_once)
{
    const auto body = std::make_shared<std::function<void()>>([] {});
    const auto task = thread_help::run_periodic_task(body, 1000, "short-lived");
    thread_help::join_periodic_task(task);
    EXPECT_FALSE(task->joinable());
}
} // namespace
