#ifndef SIMULATOR_MODEL_DYNAMICS_CALIBRATION_H
#define SIMULATOR_MODEL_DYNAMICS_CALIBRATION_H

#include <bitset>
#include <cstdint>

#include "kinematics/dh_table.h"
#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/**
 * The calibration of a robot's dynamics model: the dry run ahead of it, and which joints are done.
 *
 * An ideal robot is calibrated as soon as it is told to, and its dry run lasts until it is ended. A joint that is none
 * is QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE.
 */
class dynamics_calibration
{
public:
    [[nodiscard]] QORIN_SWITCH dry_run() const { return dry_run_; }

    /// QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE when one is under way.
    QORIN_API_RESULT start_dry_run()
    {
        if (dry_run_ == QORIN_SWITCH_ON)
            return QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE;
        dry_run_ = QORIN_SWITCH_ON;
        return QORIN_API_RESULT_OK;
    }

    QORIN_API_RESULT end_dry_run()
    {
        dry_run_ = QORIN_SWITCH_OFF;
        return QORIN_API_RESULT_OK;
    }

    QORIN_API_RESULT calibrate()
    {
        calibrated_.set();
        return QORIN_API_RESULT_OK;
    }

    QORIN_API_RESULT calibrate_joint(std::uint32_t joint)
    {
        if (joint >= calibrated_.size())
            return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
        calibrated_.set(joint);
        return QORIN_API_RESULT_OK;
    }

    /// QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE while there is nothing to save.
    QORIN_API_RESULT save() const { return saved(calibrated_.all()); }

    QORIN_API_RESULT save_joint(std::uint32_t joint) const
    {
        return joint < calibrated_.size() ? saved(calibrated_[joint])
                                          : QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    }

private:
    static QORIN_API_RESULT saved(bool calibrated)
    {
        return calibrated ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE;
    }

    QORIN_SWITCH dry_run_ = QORIN_SWITCH_OFF;
    std::bitset<savrent::kinematics::joint_count> calibrated_;
};
} // namespace cbox_simulator

#endif
