#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "qorin/qorin_api_rpc_client.h"
#include "simulator/control_box.h"
#include "tests/support/loopback.h"
#include "tools/function_table/function_rows.h"
#include "tools/qorin/call/call_arguments.h"
#include "tools/qorin/connection.h"

namespace
{
using namespace qorin_cli;

/// What a user may write for an input.
std::string word_for(const parameter_row& parameter)
{
    if (parameter.is_text)
        return "/dev/null";
    const auto is_one_of = [&](auto... names) { return ((parameter.name == names) || ...); };
    const std::string value = is_one_of("robot_id", "channel")                              ? "0"
                              : is_one_of("joint_count")                                    ? "6"
                              : is_one_of("count", "size", "point_count", "division_count") ? "4"
                                                                                            : "1";
    std::size_t elements = 1;
    for (const dimension_row& dimension : parameter.shape)
        elements *= dimension.parameter.empty() ? dimension.number : 4;
    return fmt::format("{}", fmt::join(std::vector<std::string>(elements, value), ","));
}

bool is_for_a_sweep(const function_row& function)
{
    return function.name != "qorin_rpc_system_control_sw_exit" && function.name != "qorin_rpc_system_cbox_connect" &&
           std::ranges::none_of(function.parameters,
                                [](const parameter_row& row) { return row.element == value_type::callback; });
}

// AddressSanitizer sees here when a header tells of less room than a function reads or writes.
TEST(call, each_function_has_room_for_what_it_reads_and_writes)
{
    cbox_simulator::control_box_options options;
    options.address = test_support::own_address();
    cbox_simulator::control_box box(options);
    box.start();
    const unsigned int cbox_id = connect({.address = options.address, .config = {}});
    const char text[128] = "sweep";
    unsigned int robot_id[32] = {};
    ASSERT_EQ(qorin_rpc_system_control_take(cbox_id), QORIN_API_RESULT_OK);
    ASSERT_EQ(qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM), QORIN_API_RESULT_OK);
    ASSERT_EQ(qorin_rpc_robot_create(cbox_id, QORIN_ROBOT_MODEL_ARM_A, text, 0, robot_id), QORIN_API_RESULT_OK);

    for (const auto& rows : {function_rows(), local_function_rows()})
        for (const function_row& function : rows)
        {
            if (!is_for_a_sweep(function))
                continue;
            SCOPED_TRACE(function.name);
            std::vector<std::string> words;
            for (const parameter_row& parameter : function.parameters)
                if (is_told(parameter))
                    words.push_back(word_for(parameter));
            call_arguments arguments(function, words);
            arguments.set_cbox_id(cbox_id);
            unsigned long result = 0;
            function.invoke(arguments.addresses().data(), &result);
            if (function.returns == value_type::result)
            {
                EXPECT_NE(result, 0);
                EXPECT_NE(result, QORIN_API_RESULT_ERROR_CBOX_ID_INVALID);
            }
            EXPECT_NO_THROW(static_cast<void>(arguments.outputs().dump()));
        }
}
} // namespace
