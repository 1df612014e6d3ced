#include "qorin/robot_force_status.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                       QORIN_SWITCH* control_switch)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_switch_get, robot_id, control_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_coordinate_get(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_REF_COORDINATE* coordinate)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_coordinate_get, robot_id, coordinate);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_direction_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH* x, QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                 QORIN_SWITCH* rx, QORIN_SWITCH* ry, QORIN_SWITCH* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_direction_switch_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                      double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_force_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_velocity_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                         double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_velocity_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_acc_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                    double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_acc_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_dec_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                    double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_dec_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_stiffness_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                          double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_stiffness_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_damping_ratio_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                              double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_damping_ratio_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_inertia_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                        double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_inertia_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_approach_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* x, double* y, double* z, double* rx,
                                                                  double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_approach_velocity_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_low_pass_filter_get(unsigned int cbox_id, unsigned int robot_id,
                                                                double* low_pass_filter)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_low_pass_filter_get, robot_id, low_pass_filter);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_sensorless_bias_get(unsigned int cbox_id, unsigned int robot_id,
                                                                QORIN_SWITCH* bias_switch)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_sensorless_bias_get, robot_id, bias_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_value_bias_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH* x, QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                 QORIN_SWITCH* rx, QORIN_SWITCH* ry, QORIN_SWITCH* rz)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_force_value_bias_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_actual_force_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                             double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_actual_force_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_force_ctrl_actual_torq_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                            double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_force_ctrl_actual_torq_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_SWITCH* sensor_switch)
{
    return from_mirror(cbox_id, qorin_robot_force_torq_sensor_switch_get, robot_id, sensor_switch);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_actual_force_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    double* x, double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_force_torq_sensor_actual_force_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_actual_torq_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   double* x, double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_force_torq_sensor_actual_torq_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH* sensor_switch)
{
    return from_mirror(cbox_id, qorin_robot_ext_force_torq_sensor_switch_get, robot_id, sensor_switch);
}
