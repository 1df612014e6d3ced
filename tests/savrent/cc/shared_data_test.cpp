#include "savrent/cc/shared_data_manager.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "savrent/cc/internal_cmd_proc.h"
#include "savrent/cc/shared_memory.h"
#include "savrent/cc/sw_err.h"
#include "savrent/cc/system_config_parser.h"
#include "savrent/ctrl/algorithm/robot_kinematics.h"
#include "tests/support/installation.h"

namespace
{
using namespace savrent::cc;

class shared_data : public testing::Test
{
protected:
    /// Without a transfer protocol the frame lies in shared memory, under the name that the test gives.
    void SetUp() override
    {
        test_support::write_file(place_.config_path(), "[client]\nlog_print_out=on\n");
        ASSERT_TRUE(system_config_parser::get_instance()->load_file(nullptr));
    }
    void TearDown() override { terminate_shared_data(); }

    /// A name that no other process has.
    static std::string unique_name(const char* suffix)
    {
        return "qorin_test_" + std::to_string(getpid()) + "_" + suffix;
    }

    static bool exists(const std::string& name) { return std::filesystem::exists("/dev/shm/" + name); }

    /// The word that others find in the frame, whatever this process calls it.
    static std::uint32_t error_code()
    {
        std::uint32_t code = 0;
        std::memcpy(&code, reinterpret_cast<const unsigned char*>(get_shared_data_c()) + 368, sizeof(code));
        return code;
    }

    template <class Call>
    static std::string printed_by(const Call& call)
    {
        testing::internal::CaptureStdout();
        call();
        return testing::internal::GetCapturedStdout();
    }

    const test_support::installation place_;
};

TEST_F(shared_data, maps_named_blocks_and_removes_them)
{
    const std::string name = unique_name("block");
    const std::string longest =
        unique_name("") + std::string(shared_memory::max_name_length - unique_name("").size(), 'x');
    auto* block = static_cast<unsigned char*>(shared_memory::create(5000, name.c_str()));
    ASSERT_NE(nullptr, block);
    EXPECT_TRUE(exists(name));
    EXPECT_EQ(0, block[4999]);
    block[4999] = 7;
    EXPECT_NE(nullptr, shared_memory::create(1, longest.c_str()));

    struct refusal
    {
        std::string name;
        const char* line;
    };
    const refusal refusals[] = {
        {name, "at shared_memory : duplication_check has found duplicated name"},
        {longest + "x", "at shared_memory : string length is too long"},
        {"", "shared memory : "},
        {"no/such/directory", "shared memory no/such/directory: "},
    };
    for (const refusal& expected : refusals)
    {
        const std::string line =
            printed_by([&] { EXPECT_EQ(nullptr, shared_memory::create(5000, expected.name.c_str())); });
        EXPECT_NE(std::string::npos, line.find(expected.line)) << line;
    }
    EXPECT_EQ(7, block[4999]);

    shared_memory::destroy_all_created_memory();
    EXPECT_FALSE(exists(name));
    EXPECT_FALSE(exists(longest));
    EXPECT_NE(nullptr, shared_memory::create(5000, name.c_str())) << "the name is free again";
}

TEST_F(shared_data, reports_missing_data_once_in_the_process)
{
    const std::string first = printed_by([] { EXPECT_EQ(nullptr, get_system_data()); });
    EXPECT_NE(std::string::npos, first.find("at shared_data_manager : shared data is nullptr\n")) << first;
    EXPECT_EQ(first.find("nullptr"), first.rfind("nullptr")) << first;
    EXPECT_EQ("", printed_by(
                      []
                      {
                          EXPECT_EQ(nullptr, get_system_data());
                          EXPECT_EQ(nullptr, get_shared_data_c());
                      }));
}

TEST_F(shared_data, lies_in_one_block_that_takes_software_faults)
{
    const std::string name = unique_name("frame");
    EXPECT_TRUE(init_shared_data(name.c_str()));
    EXPECT_FALSE(init_shared_data(name.c_str()));
    EXPECT_EQ(sizeof(protocol::shared_data_t), std::filesystem::file_size("/dev/shm/" + name));

    err::sw_err::handle("fault", "config_parser.cpp", 64);
    ASSERT_NE(nullptr, get_shared_data_c());
    EXPECT_EQ(190001u, error_code());
    EXPECT_STREQ("CONFIG_PARSER:64", get_system_data()->error_text);
    EXPECT_FALSE(savrent::ctrl::algorithm::robot_kinematics(QORIN_ROBOT_MODEL_ARM_A, "./missing").is_loaded());
    EXPECT_EQ(102044u, error_code());

    terminate_shared_data();
    EXPECT_EQ(nullptr, get_system_data());
    EXPECT_FALSE(exists(name));
}

TEST_F(shared_data, exchanges_frames_and_commands_over_links)
{
    int fw[2];
    int api[2];
    ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, fw));
    ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, api));
    tcp_client write_link(fw[0]);
    tcp_client read_link(api[0]);
    const tcp_client program(fw[1]);
    const tcp_client control_software(api[1]);
    auto frame = std::make_unique<protocol::shared_data_t>();
    val_obj::api_to_fw_cmd command = {};
    auto& commands = internal_cmd_proc::get_instance()->commands();

    data_tcp_shared_data exchange;
    exchange.data()->robot_count = 2;
    exchange.init("links");
    exchange.set_fw_run();
    exchange.set_write_tcp_client(&write_link);
    ASSERT_EQ(29728, program.tcp_read(reinterpret_cast<unsigned char*>(frame.get()), 29728));
    EXPECT_EQ(2u, frame->robot_count);
    std::strcpy(command.request.wire_name, "qorin_sent");
    ASSERT_EQ(8704, program.tcp_write(reinterpret_cast<const unsigned char*>(&command), 8704));
    ASSERT_EQ(29728, program.tcp_read(reinterpret_cast<unsigned char*>(frame.get()), 29728)) << "the next exchange";
    val_obj::api_to_fw_cmd received = {};
    ASSERT_TRUE(commands.get(received));
    EXPECT_STREQ("qorin_sent", received.request.wire_name);
    EXPECT_FALSE(commands.get(received));

    val_obj::api_to_fw_cmd* queued = commands.take_free();
    *queued = command;
    commands.put(queued);
    frame->robot_count = 1;
    exchange.set_read_tcp_client(&read_link);
    for (const char* expected : {"qorin_sent", ""})
    {
        ASSERT_EQ(29728, control_software.tcp_write(reinterpret_cast<const unsigned char*>(frame.get()), 29728));
        ASSERT_EQ(8704, control_software.tcp_read(reinterpret_cast<unsigned char*>(&received), 8704));
        EXPECT_STREQ(expected, received.request.wire_name);
    }
    exchange.terminate();
    EXPECT_EQ(1u, exchange.data_c()->robot_count);
}
} // namespace
