#include "tests/support/robot_presence.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

#include "api/api_call_robot_internal_data.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"

namespace test_support
{
void make_robot_present(unsigned int robot_id)
{
    const auto config = savrent::cc::system_config_parser::get_instance();
    if (!config->is_loaded())
    {
        const std::filesystem::path file =
            std::filesystem::temp_directory_path() / ("qorin_robot_presence_" + std::to_string(getpid()) + ".ini");
        write_file(file, "[client]\nlog_save_path=./log\nlog_print_out=off\nkinematics_path=" QORIN_KINEMATICS_DIRECTORY
                         "\n[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n");
        EXPECT_TRUE(config->load_file(file.c_str()));
        std::filesystem::remove(file);
    }
    EXPECT_EQ(QORIN_API_RESULT_OK,
              qorin_api::api_call_robot_internal_data::get_instance()->create(robot_id, QORIN_ROBOT_MODEL_ARM_A))
        << "client.kinematics_path: " << savrent::cc::system_config_value("client.kinematics_path");
}
} // namespace test_support
