#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "qorin/qorin_api_rpc_client.h"
#include "simulator/control_box.h"
#include "tests/support/loopback.h"

namespace
{
namespace fs = std::filesystem;
using test_support::own_address;

/// The library as an application links it, beside simulated control boxes.
class library_session : public testing::Test
{
protected:
    library_session()
    {
        std::signal(SIGPIPE, SIG_IGN);
        std::string pattern = (fs::temp_directory_path() / "qorin_session_XXXXXX").string();
        directory_ = mkdtemp(pattern.data());
        setenv("SAVRENT_V3", directory_.c_str(), 1);
        config_ = directory_ / "config.ini";
        std::ofstream(config_) << "[client]\nlog_save_path=./log\n";
    }
    ~library_session() override { fs::remove_all(directory_); }

    unsigned int connect(unsigned int index)
    {
        unsigned int id = 99;
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect(config_.c_str(), own_address(index).c_str(), &id));
        return id;
    }

    static cbox_simulator::control_box_options at(unsigned int index)
    {
        cbox_simulator::control_box_options options;
        options.address = own_address(index);
        return options;
    }

    fs::path directory_;
    fs::path config_;
};

TEST_F(library_session, commands_one_box_from_two_connections_and_the_control_decides)
{
    cbox_simulator::control_box box(at(0));
    box.start();
    const unsigned int first = connect(0);
    const unsigned int second = connect(0);
    EXPECT_STREQ(qorin_rpc_system_api_version_get(first), qorin_rpc_system_control_sw_version_get(second));

    const char text[128] = "cell";
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_system_create(first, text, QORIN_CBOX_MODEL_3GEN_SIM));
    EXPECT_EQ(QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED,
              qorin_rpc_gen_system_create(second, text, QORIN_CBOX_MODEL_3GEN_SIM));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(first));
    EXPECT_EQ(QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL, qorin_rpc_system_control_take(first));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE, qorin_rpc_system_control_take(second));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL, qorin_rpc_system_reset(second));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(first));

    QORIN_SWITCH controllable[32] = {};
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_controllable_get(first, controllable));
    EXPECT_EQ(QORIN_SWITCH_ON, controllable[0]);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_controllable_get(second, controllable));
    EXPECT_EQ(QORIN_SWITCH_OFF, controllable[0]);

    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_release(first));
    EXPECT_EQ(QORIN_API_RESULT_WARNING_YOU_ALREADY_RELEASED_THE_CONTROL, qorin_rpc_system_control_release(first));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(second));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_release(second));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_destroy(second));
}

TEST_F(library_session, works_with_two_boxes_until_one_of_them_ends)
{
    cbox_simulator::control_box first_box(at(0));
    cbox_simulator::control_box second_box(at(1));
    first_box.start();
    second_box.start();
    const unsigned int first = connect(0);
    const unsigned int second = connect(1);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(first));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(second));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_sw_exit(first));
    first_box.stop();
    EXPECT_EQ(0u, qorin_rpc_system_reset(first)) << "a lost link answers 0";
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(second));
}
} // namespace
