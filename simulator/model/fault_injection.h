#ifndef SIMULATOR_MODEL_FAULT_INJECTION_H
#define SIMULATOR_MODEL_FAULT_INJECTION_H

#include <cstdint>

#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/// What a tester can make happen to the box, and what the two values mean for each.
enum class injected_fault : std::uint32_t
{
    emergency_button = 1, ///< 1 pushed, 0 released; button: 0 the box's own, 1 to 4 those of the mobile base
    power_button = 2,     ///< 1 pushed, 0 released; second value not used
    ecat_link_loss = 3,   ///< 1 lost, 0 restored; second value not used
    error_event = 4,      ///< subgroup of the error group, its _INVALID member excepted; sender id
    homing = 5,           ///< of every robot: 0 works, 1 the drives do not answer, 2 they refuse; second value not used
    collision = 6,        ///< robot and place of a blow, see below; newtons or newton metres
    held_joint = 7,       ///< robot and joint; 1 held fast, 0 let go
};

/**
 * Makes it happen, with all consequences that it has in the box.
 *
 * A robot and a place are one number, 100 times the robot and the place: 0 to 5 are the joints, 6 to 11 the axes of the
 * TCP in the order x, y, z, rx, ry, rz.
 *
 * A fault that is none of the above, a subgroup of another group and a place that no arm has are
 * QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE; a robot that is not there is
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, a joint QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE; a value other
 * than 0 and 1 is QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE; a mobile base button that is not there is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER. The EtherCAT link is there to be lost and restored only while a
 * system stands: QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT otherwise.
 */
QORIN_API_RESULT inject_fault(box_model& model, injected_fault fault, std::uint32_t value_1, std::uint32_t value_2);
} // namespace cbox_simulator

#endif
