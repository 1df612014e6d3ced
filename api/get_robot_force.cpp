#include "qorin/robot_force_status.h"

#include "api/frame_read.h"

namespace
{
using protocol::ext_ft_sensor_data_t;
using protocol::ft_sensor_data_t;
using protocol::record_at;
using protocol::robot_data_t;
using protocol::shared_data_t;
using qorin_api::frame_of;
using qorin_api::hand_out;
using qorin_api::read_frame_of_robot;
using qorin_api::read_robot;

template <class Field, class... Outputs>
QORIN_API_RESULT read_sensor(unsigned int robot_id, Field ft_sensor_data_t::*field, Outputs*... outputs)
{
    return read_frame_of_robot(robot_id, [&](const shared_data_t& frame)
                               { hand_out(record_at<ft_sensor_data_t>(frame, robot_id), field, outputs...); });
}
} // namespace

QORIN_API_RESULT qorin_robot_force_ctrl_switch_get(unsigned int robot_id, QORIN_SWITCH* control_switch)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_switch, control_switch);
}

QORIN_API_RESULT qorin_robot_force_ctrl_coordinate_get(unsigned int robot_id, QORIN_REF_COORDINATE* coordinate)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_coordinate, coordinate);
}

QORIN_API_RESULT qorin_robot_force_ctrl_direction_switch_get(unsigned int robot_id, QORIN_SWITCH* x, QORIN_SWITCH* y,
                                                             QORIN_SWITCH* z, QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                             QORIN_SWITCH* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_direction_switch, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_force_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                  double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_force, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_velocity_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                     double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_velocity, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_acc_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_acc, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_dec_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_dec, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_stiffness_get(unsigned int robot_id, double* x, double* y, double* z,
                                                      double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_stiffness, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_damping_ratio_get(unsigned int robot_id, double* x, double* y, double* z,
                                                          double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_damping_ratio, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_inertia_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                    double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_inertia, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_approach_velocity_get(unsigned int robot_id, double* x, double* y, double* z,
                                                              double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_approach_velocity, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_low_pass_filter_get(unsigned int robot_id, double* low_pass_filter)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_low_pass_filter, low_pass_filter);
}

QORIN_API_RESULT qorin_robot_force_ctrl_sensorless_bias_get(unsigned int robot_id, QORIN_SWITCH* bias_switch)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_sensorless_bias, bias_switch);
}

QORIN_API_RESULT qorin_robot_force_ctrl_force_value_bias_get(unsigned int robot_id, QORIN_SWITCH* x, QORIN_SWITCH* y,
                                                             QORIN_SWITCH* z, QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                             QORIN_SWITCH* rz)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_force_value_bias, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_force_ctrl_actual_force_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_actual_force, x, y, z);
}

QORIN_API_RESULT qorin_robot_force_ctrl_actual_torq_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_robot(robot_id, &robot_data_t::force_ctrl_actual_torque, x, y, z);
}

QORIN_API_RESULT qorin_robot_force_torq_sensor_switch_get(unsigned int robot_id, QORIN_SWITCH* sensor_switch)
{
    const auto read = [&](const robot_data_t& robot)
    {
        const auto& sensor = record_at<ft_sensor_data_t>(frame_of(robot, robot_id), robot_id);
        hand_out(sensor, &ft_sensor_data_t::sensor_switch, sensor_switch);
    };
    return read_robot(robot_id, read);
}

QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_force_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_sensor(robot_id, &ft_sensor_data_t::actual_force, x, y, z);
}

QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_torq_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_sensor(robot_id, &ft_sensor_data_t::actual_torque, x, y, z);
}

QORIN_API_RESULT qorin_robot_ext_force_torq_sensor_switch_get(unsigned int robot_id, QORIN_SWITCH* sensor_switch)
{
    const auto read = [&](const shared_data_t& frame)
    { hand_out(frame.ext_ft_sensors[robot_id], &ext_ft_sensor_data_t::sensor_switch, sensor_switch); };
    return read_frame_of_robot(robot_id, read);
}
