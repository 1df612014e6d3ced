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
};

/**
 * Makes it happen, with all consequences that it has in the box.
 *
 * A fault that is none of the above and a subgroup of another group are
 * QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE; a value other than 0 and 1 is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE; a mobile base button that is not there is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER. The EtherCAT link is there to be lost and restored only while a
 * system stands: QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT otherwise.
 */
QORIN_API_RESULT inject_fault(box_model& model, injected_fault fault, std::uint32_t value_1, std::uint32_t value_2);
} // namespace cbox_simulator

#endif
