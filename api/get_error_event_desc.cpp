#include <array>
#include <map>
#include <memory>
#include <string>

#include "api/catalogue_xml.h"
#include "qorin/catalogue.h"
#include "qorin/event_codes.h"
#include "savrent/cc/immortal.h"

namespace
{
struct err_event_desc
{
    std::string name;
    std::string description;
    std::string send_id; ///< names the values that the event carries, in their order
    std::string how_to_handle;
};
using event_map = std::map<unsigned int, err_event_desc>;

struct event_row
{
    unsigned int code;
    const char* name;
    const char* description;
    const char* send_id;
    const char* how_to_handle;
};

/// The name of a row is the identifier of its code.
#define row(code, description, send_id, how_to_handle)                                                                 \
    event_row                                                                                                          \
    {                                                                                                                  \
        code, #code, description, send_id, how_to_handle                                                               \
    }

// One line a row, however long: the texts are read and compared as a table.
// clang-format off
constexpr std::array event_rows = {
    row(QORIN_EVENT_SUBGRP_ERROR_INVALID, "Invalid error event number.", "None.", "None."),
    row(QORIN_EVENT_SUBGRP_ERROR_CONTROL_BOX_ROBOT_DISCONNECTED, "Emergency stop button is released but disconnects between box and robot.", "None.", "Check ethercat network and configuration, If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_FAULT, "Ethercat slave report the fault", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_PDO_FAULT, "EtherCAT PDO communication error occurred.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_SDO_FAULT, "EtherCAT SDO communication error occurred.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_VOLTAGE_DISABLED, "EtherCAT Slave Voltage Disabled", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_DRIVE_INTERNAL_ERROR, "Motor driver report internal error", "slave ID, error code", "The drive has experienced an internal error while executing its firmware."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_SHORT_CIRCUIT, "Motor driver report short circuit", "slave ID, error code", "There is an insufficient amount of resistance between the motor leads and ground"),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_UNDER_VOLTAGE, "Motor driver report under voltage", "slave ID, error code", "The HV voltage (not logic power) is below the minimum HARDWARE specified voltage"),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_OVER_VOLTAGE, "Motor driver report over voltage", "slave ID, error code", "The HV voltage (not logic power) is above the maximum HARDWARE specified voltage"),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_DRIVE_OVER_TEMPERATURE, "Motor driver report over temperature", "slave ID, error code", "Motor over temperature is signaling the drive that the motor's temperature has been exceeded."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_PARAMETER_RESTORE_ERROR, "Motor driver report parameter restore error", "slave ID, error code", "The drive encountered an error when reading project file parameters from the drive's nonvolatile memory."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_PARAMETER_STORE_ERROR, "Motor driver report parameter store error", "slave ID, error code", "The drive encountered an error when writing project file parameters from the drive's nonvolatile memory."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_INVALID_HALL_STATE, "Motor driver report invalid hall state", "slave ID, error code", "The drive is seeing an invalid Hall state on the Hall sensor inputs."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_PHASE_SYNC_ERROR, "Motor driver report phase sync error", "slave ID, error code", "Indicates the number of counts seen by the drive between synchronization markers was not consistent with what had been determined during AutoCommutation and/or the initial parameters."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_PHASE_DETECTION_FAULT, "Motor driver report phase detection fault", "slave ID, error code", "The drive was unable to correctly determine the proper phasing following a phase detect routine"),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_FEEDBACK_SENSOR_ERROR, "Motor driver report feedback sensor error", "slave ID, error code", "The drive was unable to correctly determine the proper phasing following a phase detect routine."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_MOTOR_OVER_SPEED, "Motor driver report motor over speed", "slave ID, error code", "The motor's measured velocity is higher than the motor overspeed limit set by software. "),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_USER_UNDER_VOLTAGE, "Motor driver report user under voltage", "slave ID, error code", "The HV voltage (not logic power) is below the minimum SOFTWARE specified voltage."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_USER_OVER_VOLTAGE, "Motor driver report user over voltage", "slave ID, error code", "The HV voltage (not logic power) is above the maximum SOFTWARE specified voltage."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_NON_SINUSOIDAL_COMMUTATION, "Motor driver report non sinusoidal commutation", "slave ID, error code", "The drive is operating in the non-sinusoidal commutation mode (trapezoidal)."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_VELOCITY_FOLLOWING_ERROR, "Motor driver report velocity following error", "slave ID, error code", "The target and measured velocity is outside of the velocity following error window defined in the software."),
    row(QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_POSITION_FOLLOWING_ERROR, "Motor driver report position following error", "slave ID, error code", "The measured position is outside of the position following error window defined in the software."),
    row(QORIN_EVENT_SUBGRP_ERROR_IO_BOARD_SHORT_DETECTION, "IO board report short detection", "slave ID, error code", "IO connection is incorrect. Recheck IO connection"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_SLAVE_STOP0_REQUEST, "Safety report Category stop0 request", "slave ID, error code", "Check reported safety LED status detail"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_SLAVE_STOP1_REQUEST, "Safety report Category stop1 request", "slave ID, error code", "Check reported safety LED status detail"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_SLAVE_STOP2_REQUEST, "Safety report Category stop2 request", "slave ID, error code", "Check reported safety LED status detail"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_RELAY_FAILURE, "Safety relay failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_EMERGENCY_SWITCH_FAILURE, "Safety emergency switch failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_ENERGY_EATER_DEVICE_FAILURE, "Safety energy eater device failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_MC_RELAY_NORMAL_CLOSE_TEST_FAILURE, "Safety mc relay normal close test failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_MCU_HW_FAILURE, "Safety mcu hw failure.", "slave ID, error code", "If it repeats after retrying, check by stocking CS Engineer"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_48V_DC_SUPPLY_FAILURE, "Safety 48v dc supply failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_POSITION_FOLLOWING_ERROR, "Safety joint position following error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_VELOCITY_FOLLOWING_ERROR, "Safety joint velocity following error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_POSITION_RANGE_ERROR, "Safety joint position range error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_VELOCITY_RANGE_ERROR, "Safety joint velocity range error.", "slave ID, error code", "If it repeats after retrying, check by stocking CS Engineer"),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_TORQUE_RANGE_ERROR, "Safety joint torque range error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_TCP_POSITION_FOLLOWING_ERROR, "Safety tcp position following error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_ETHERCAT_CONNECTION_FAILURE, "Safety ethercat connection failure.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_ETHERCAT_CRC_MISMATCH_ERROR, "Safety ethercat crc mismatch error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_JOINT_ACCELERATION_RANGE_ERROR, "Safety joint acceleration range error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_STOP_MONITORING_ERROR, "Safety stop monitoring error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_MOTOR_BRAKE_ERROR, "Safety motor brake error.", "slave ID, error code", "If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_SAFETY_COLLISION_DETECTION, "Safety report collision detection", "slave ID, error code", "Check whether a real collision occurred"),
    row(QORIN_EVENT_SUBGRP_ERROR_DRIVE_OVER_TEMPERATURE_SCENARIO, "The high temperature lasted more than a certain amount of time", "Robot ID, Joint index, Average temperature", "Cool down and restart"),
    row(QORIN_EVENT_SUBGRP_ERROR_ROBOT_DYNAMICS_CALIBRATION_NOT_MATCHED, "The high temperature lasted more than a certain amount of time", "Robot ID, Joint index", "Execute robot dynamics calibration."),
    row(QORIN_EVENT_SUBGRP_ERROR_ACTIVE_ECAT_SLAVE_COUNT_FAULT, "The number of detected active slaves on the EtherCAT network does not match expectations.", "Detected Slave count, ENI Slave count", "Check ethercat network and configuration, If it repeats after retrying, please contact a CS engineer to check."),
    row(QORIN_EVENT_SUBGRP_ERROR_EPC_DIGITAL_INPUT_ABNORMALITY, "EPC's digital input value is abnormal.", "None.", "First, Check Safeguard input. And check the surrounding IO connection"),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_POSITION, "An angle range violation occurs during the motion.", "robot ID", "Check through the simulation and modify the motion parameters."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_SPEED, "An angular speed range violation occurs during the motion.", "robot ID", "Check through the simulation and modify the motion parameters."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_ACCELERATION, "An angular acceleration violation occurs during the motion.", "robot ID", "Check through the simulation and modify the motion parameters."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_TCP_POSITION, "The robot is out of bounds on the safety plane.", "robot ID", "Check the relationship between the robot's position and the safety plane."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_SINGULARITY, "The motion includes an singularity point.", "robot ID", "Check through the simulation and modify the motion parameters."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MOTION_GENERATION_FAILURE, "Motion cannot be performed with the given parameters.", "robot ID", "Check that there are no motion parameters entered incorrectly. especially start, max and end speeds."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_FOLLOWING_ERROR, "Target position and actual position difference exceeded criteria.", "robot ID, joint index", "If repeats, report it."),
    row(QORIN_EVENT_SUBGRP_ROBOT_REDUNDANT_IO_LINE_VALUE_DIFF, "The two digital input signals in EtherCAT IO module remained different for more than 100 ms.", "robot ID, io number 1, io number 2.", "Check external system that gives two digital input values."),
    row(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_LINE_VALUE_DIFF, "The two digital input signals in safety module remained different for more than 100 ms.", "robot ID, io number 1, io number 2.", "Check external system that gives two digital input values."),
    row(QORIN_EVENT_SUBGRP_NOTIFICATION_SYSTEM_FAIL_TO_INITIALIZED, "System initialization failed.", "None.", "Try again. Report if repeated."),
    row(QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_SW_EXIT, "Terminate control software.", "None.", "If you didn't do it on purpose, report it."),
};
// clang-format on
#undef row

static_assert(event_rows.size() == 60);

std::unique_ptr<event_map> filled_event_map()
{
    auto events = std::make_unique<event_map>();
    for (const event_row& entry : event_rows)
        (*events)[entry.code] = {entry.name, entry.description, entry.send_id, entry.how_to_handle};
    return events;
}

/// Filled on first use, once whatever the number of threads that ask.
const event_map& event_catalogue()
{
    static savrent::cc::immortal<std::unique_ptr<event_map>> g_p_err_event_map(filled_event_map());
    return **g_p_err_event_map;
}
} // namespace

QORIN_API_RESULT qorin_system_error_event_description_all_xml_save(const char* path)
{
    const event_map& rows = event_catalogue();
    qorin_api::catalogue_xml file(path, "QorinErrorEvent");
    for (const auto& [code, texts] : rows)
        file.write_row("ErrEventInfo", {{"Name", texts.name},
                                        {"Code", std::to_string(code)},
                                        {"Description", texts.description},
                                        {"SendID", texts.send_id},
                                        {"HowToHandle", texts.how_to_handle}});
    return QORIN_API_RESULT_OK;
}
