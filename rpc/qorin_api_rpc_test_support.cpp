// Values and faults put into the control software.
#include "qorin/test_support.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_ts_cbox_io_digital_input_set(unsigned int cbox_id, unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_cbox_io_digital_input_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_cbox_redundant_io_digital_input_set(unsigned int cbox_id, unsigned int channel,
                                                                  unsigned int value)
{
    return command<"qorin_ts_cbox_redundant_io_digital_input_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_cbox_redundant_io_digital_output_set(unsigned int cbox_id, unsigned int channel,
                                                                   unsigned int value)
{
    return command<"qorin_ts_cbox_redundant_io_digital_output_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_safety_module_redundant_io_digital_input_set(unsigned int cbox_id, unsigned int channel,
                                                                           unsigned int value)
{
    return command<"qorin_ts_safety_module_redundant_io_digital_input_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_epc_io_digital_input_set(unsigned int cbox_id, unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_epc_io_digital_input_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_gen_cbox_io_digital_input_set(unsigned int cbox_id, unsigned int module,
                                                            unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_gen_cbox_io_digital_input_set">(cbox_id, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_gen_cbox_redundant_io_digital_input_set(unsigned int cbox_id, unsigned int module,
                                                                      unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_gen_cbox_redundant_io_digital_input_set">(cbox_id, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_gen_cbox_redundant_io_digital_output_set(unsigned int cbox_id, unsigned int module,
                                                                       unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_gen_cbox_redundant_io_digital_output_set">(cbox_id, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_robot_tool_io_digital_input_set(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int channel, unsigned int value)
{
    return command<"qorin_ts_robot_tool_io_digital_input_set">(cbox_id, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_ts_robot_joint_velocity_feedforward_ratio_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double ratio)
{
    return command<"qorin_ts_robot_joint_velocity_feedforward_ratio_set">(cbox_id, robot_id, joint, ratio);
}

QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_ratio_set(unsigned int cbox_id, unsigned int robot_id,
                                                                       unsigned int joint, double ratio)
{
    return command<"qorin_ts_robot_joint_torque_feedforward_ratio_set">(cbox_id, robot_id, joint, ratio);
}

QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_current_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double current)
{
    return command<"qorin_ts_robot_joint_torque_feedforward_current_set">(cbox_id, robot_id, joint, current);
}

QORIN_API_RESULT qorin_rpc_ts_fault_inject(unsigned int cbox_id, unsigned int fault, unsigned int value_1,
                                           unsigned int value_2)
{
    return command<"qorin_ts_fault_inject">(cbox_id, fault, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_ts_cbox_sdo_write(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                             unsigned int value_3, unsigned int value_4, unsigned int value_5)
{
    return command<"qorin_ts_cbox_sdo_write">(cbox_id, value_1, value_2, value_3, value_4, value_5);
}

QORIN_API_RESULT qorin_rpc_ts_cbox_sdo_read(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                            unsigned int value_3, unsigned int value_4, unsigned int* result)
{
    return command<"qorin_ts_cbox_sdo_read">(cbox_id, value_1, value_2, value_3, value_4, result);
}
