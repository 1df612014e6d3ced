// Force control, force-torque sensors.
#include "qorin/robot_force_control.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                       QORIN_SWITCH control_switch)
{
    return command<"qorin_robot_force_ctrl_switch_set">(cbox_id, robot_id, control_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_coordinate_set(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_REF_COORDINATE coordinate)
{
    return command<"qorin_robot_force_ctrl_coordinate_set">(cbox_id, robot_id, coordinate);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_direction_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH x, QORIN_SWITCH y, QORIN_SWITCH z,
                                                                 QORIN_SWITCH rx, QORIN_SWITCH ry, QORIN_SWITCH rz)
{
    return command<"qorin_robot_force_ctrl_direction_switch_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_set(unsigned int cbox_id, unsigned int robot_id, double x, double y,
                                                      double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_force_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_velocity_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                         double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_velocity_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_acc_set(unsigned int cbox_id, unsigned int robot_id, double x, double y,
                                                    double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_acc_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_dec_set(unsigned int cbox_id, unsigned int robot_id, double x, double y,
                                                    double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_dec_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_damping_ratio_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                              double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_damping_ratio_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_inertia_set(unsigned int cbox_id, unsigned int robot_id, double x, double y,
                                                        double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_inertia_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_approach_velocity_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                                  double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_approach_velocity_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_stiffness_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                          double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_force_ctrl_stiffness_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_low_pass_filter_set(unsigned int cbox_id, unsigned int robot_id,
                                                                double frequency)
{
    return command<"qorin_robot_force_ctrl_low_pass_filter_set">(cbox_id, robot_id, frequency);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_value_bias_set(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH x, QORIN_SWITCH y, QORIN_SWITCH z,
                                                                 QORIN_SWITCH rx, QORIN_SWITCH ry, QORIN_SWITCH rz)
{
    return command<"qorin_robot_force_ctrl_force_value_bias_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_sensorless_bias_set(unsigned int cbox_id, unsigned int robot_id,
                                                                QORIN_SWITCH bias)
{
    return command<"qorin_robot_force_ctrl_sensorless_bias_set">(cbox_id, robot_id, bias);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_SWITCH sensor_switch)
{
    return command<"qorin_robot_force_torq_sensor_switch_set">(cbox_id, robot_id, sensor_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_bias_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH bias_switch)
{
    return command<"qorin_robot_force_torq_sensor_bias_switch_set">(cbox_id, robot_id, bias_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_bias_clear(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_SWITCH bias_switch)
{
    return command<"qorin_robot_force_torq_sensor_bias_clear">(cbox_id, robot_id, bias_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_filter_set(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_FORCE_TORQUE_SENSOR_FILTER filter)
{
    return command<"qorin_robot_force_torq_sensor_filter_set">(cbox_id, robot_id, filter);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_sample_rate_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE sample_rate)
{
    return command<"qorin_robot_force_torq_sensor_sample_rate_set">(cbox_id, robot_id, sample_rate);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_calibration_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_FORCE_TORQUE_SENSOR_CALIBRATION calibration)
{
    return command<"qorin_robot_force_torq_sensor_calibration_set">(cbox_id, robot_id, calibration);
}

QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH input_switch)
{
    return command<"qorin_robot_ext_force_torq_sensor_switch_set">(cbox_id, robot_id, input_switch);
}

QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_force_torque_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        double x, double y, double z, double rx,
                                                                        double ry, double rz)
{
    return command<"qorin_robot_ext_force_torq_sensor_force_torque_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}
