#include <cstdlib>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "qorin/system.h"
#include "rpc/qorin_rpc_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using test_support::own_address;
using test_support::scripted_cbox;

/// Runs a case of this program in a process of its own against a box at `address`; its wait status, -1 when it hangs.
int run_child(const char* child_case, const std::string& address)
{
    const pid_t child = fork();
    if (child == 0)
    {
        setenv("QORIN_TEST_BOX", address.c_str(), 1);
        const std::string filter = std::string("--gtest_filter=process_end_child.") + child_case;
        execl("/proc/self/exe", "rpc_test", filter.c_str(), "--gtest_also_run_disabled_tests", nullptr);
        _exit(127);
    }
    for (int i = 0; i < 3000; ++i)
    {
        int status = 0;
        if (waitpid(child, &status, WNOHANG) == child)
            return status;
        usleep(10'000);
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    return -1;
}

/// Connects the child to its parent's silent control box.
void connect_child(unsigned int& id)
{
    const char* address = std::getenv("QORIN_TEST_BOX");
    if (address == nullptr)
        GTEST_SKIP() << "runs as a child only";
    ASSERT_EQ(QORIN_API_RESULT_OK, qorin_api_rpc::qorin_api_internal_rpc_system_create(address, 7700, &id));
}

TEST(process_end_child, DISABLED_returns_from_main)
{
    unsigned int id = 0;
    connect_child(id);
}

TEST(process_end_child, DISABLED_exits_beside_a_blocked_command)
{
    unsigned int id = 0;
    connect_child(id);
    std::thread([id] { (void)qorin_rpc_system_reset(id); }).detach();
    usleep(200'000);
    std::exit(0);
}

TEST(process_end, does_not_hang_on_an_open_and_silent_connection)
{
    scripted_cbox box(own_address());
    EXPECT_EQ(0, run_child("DISABLED_returns_from_main", own_address()));
}

TEST(process_end, does_not_hang_beside_a_blocked_command)
{
    scripted_cbox box(own_address());
    EXPECT_EQ(0, run_child("DISABLED_exits_beside_a_blocked_command", own_address()));
    EXPECT_EQ(1u, box.request_count());
}
} // namespace
